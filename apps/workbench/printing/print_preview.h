#pragma once

#include <QDialog>
#include <QStringList>
#include <QWidget>

#include "workbench/printing/print_plan.h"

class QLabel;
class QPushButton;
class QScrollArea;

namespace workbench {

/// A page of the plan as it comes out on paper.
class PageSheet : public QWidget {
    Q_OBJECT
public:
    /// `plan` outlives it.
    explicit PageSheet(const PrintPlan& plan, QWidget* parent = nullptr);

    void SetPage(std::int64_t page);
    /// So many pixels for an inch.
    void SetZoom(double pixels);

signals:
    /// What had no room on the page that was just drawn; empty where all had.
    void LeftOut(const QStringList& names);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const PrintPlan& plan_;
    std::int64_t page_ = 0;
    double pixels_ = 1;
};

/// Shows the pages ahead of printing. It is accepted where they are to be printed.
class PrintPreview : public QDialog {
    Q_OBJECT
public:
    explicit PrintPreview(PrintPlan plan, QWidget* parent = nullptr);

    const PrintPlan& Plan() const { return plan_; }
    std::int64_t Page() const { return page_; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QLayout* MakeButtons();
    void GoTo(std::int64_t page);
    void ShowLeftOut(const QStringList& names);
    void Zoom();

    PrintPlan plan_;
    std::int64_t page_ = 0;
    QScrollArea* area_;
    PageSheet* sheet_;
    QLabel* note_;
    QLabel* where_;
    QPushButton* previous_;
    QPushButton* next_;
    QPushButton* actual_;
};

}  // namespace workbench
