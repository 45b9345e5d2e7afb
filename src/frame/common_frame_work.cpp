#include "frame/common_frame_work.h"

#include "window/frames/frame_wnd.h"

namespace {

CNorvadonPCDoc* (*g_asHostDocument)(CDocument*) = nullptr;
CNorvadonPCTreeView* (*g_treeView)() = nullptr;

}  // namespace

CDocument* CommonFrameWork::GetKvActiveDocumentPtr() {
    auto* mainFrame = dynamic_cast<CFrameWnd*>(AfxGetMainWnd());
    CFrameWnd* active = mainFrame ? mainFrame->GetActiveFrame() : nullptr;
    return active ? active->GetActiveDocument() : nullptr;
}

CNorvadonPCDoc* CommonFrameWork::GetKvActiveNorvadonPCDocPtr() {
    CDocument* document = GetKvActiveDocumentPtr();
    return document && g_asHostDocument ? g_asHostDocument(document) : nullptr;
}

CNorvadonPCTreeView* CommonFrameWork::GetKvTreeViewPtr() {
    return g_treeView ? g_treeView() : nullptr;
}

void CommonFrameWork::SetHost(CNorvadonPCDoc* (*asHostDocument)(CDocument*),
                              CNorvadonPCTreeView* (*treeView)()) {
    g_asHostDocument = asHostDocument;
    g_treeView = treeView;
}
