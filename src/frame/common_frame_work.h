#pragma once

#include "base/export.h"

class CDocument;
class CNorvadonPCDoc;
class CNorvadonPCTreeView;

/// Ways from the running application to what the user works on, for the host and its plug-ins.
class KVGUICTL_API CommonFrameWork {
public:
    /// The active document of the main window's active frame; null at the first missing link.
    static CDocument* GetKvActiveDocumentPtr();
    /// The same, as the host's own document class. Null when it is of another class.
    static CNorvadonPCDoc* GetKvActiveNorvadonPCDocPtr();
    /// The host's tree view, null until the host has set one.
    static CNorvadonPCTreeView* GetKvTreeViewPtr();

    /// The host's classes are not known here: it says how a document becomes one of its own, and
    /// which tree view it has. Not owned.
    static void SetHost(CNorvadonPCDoc* (*asHostDocument)(CDocument*),
                        CNorvadonPCTreeView* (*treeView)());
};
