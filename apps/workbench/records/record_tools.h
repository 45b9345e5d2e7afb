#pragma once

#include <QObject>
#include <QPointer>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "pickers/order_dlg.h"
#include "workbench/commands.h"
#include "workbench/document/document_history.h"
#include "workbench/main_frame.h"
#include "workbench/map/map_canvas.h"
#include "workbench/records/well_pane.h"
#include "workbench/results/results_pane.h"
#include "workbench/work_runner.h"

class QDockWidget;
class QMenu;
class QMenuBar;
class CKvGuiWellSearch;

namespace workbench {

/// What is done with single records: the order of areas in reports, the search for a well, and the
/// comments on it.
class RecordTools : public QObject {
    Q_OBJECT
public:
    /// What the tools work on; it outlives them.
    struct Host {
        MainFrame& frame;
        MapCanvas& canvas;
        ResultsPane& results;
        WorkRunner& runner;
        const CKvDbInfo& database;  ///< the connection record
        const DocumentHistory& history;
        QDockWidget& dock;  ///< around `pane`
        WellPane& pane;
        std::function<void(ResultTable)> showTable;
        std::function<void(const QString&)> fail;
        std::function<void(const QString&)> tell;
    };

    RecordTools(Host host, QObject* parent);

    QDockWidget& Dock() { return host_.dock; }
    /// The menus "Find" and "Database".
    void MakeMenus(QMenuBar& bar, Commands& commands);

    /// Asks in which order reports list areas.
    void AskAreaOrder();
    /// Area codes, as SQL literals, in that order; as they are where none was asked for yet, or
    /// where it cannot be read, which is told.
    std::vector<std::string> InOrder(std::vector<std::string> areaLiterals);

    /// Asks for a well, shows those that it finds, and jumps to the first.
    void FindWell();
    /// Makes a table of comments, and lets everybody read it.
    void CreateCommentTable();

private:
    std::pair<Place, Place> CornersOfSearch() const;
    void FillIn(CKvGuiWellSearch& dialog) const;
    void ShowFound(ResultTable table);
    void ShowChosen(int row);
    void ShowPane();
    QString NoWell() const;
    void LetAllRead(const std::string& table, CKvDbInfo login);

    Host host_;
    COrderDlg order_;
    bool orderAsked_ = false;
};

}  // namespace workbench
