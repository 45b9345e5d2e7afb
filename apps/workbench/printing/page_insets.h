#pragma once

#include <QRectF>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

#include "workbench/map/map_look.h"
#include "workbench/printing/page_labels.h"
#include "workbench/printing/page_view.h"

namespace workbench {

/// Draws what is set into the map of a page: on the first one title, scale and legend, and where
/// there are several the key of the pages on each.
class PageInsets {
public:
    /// All of them outlive it.
    PageInsets(const PrintPlan& plan, const PageView& view, const MapLook& look, Paper& paper,
               PageLabels& labels);

    /// Answers the names of those that had no room.
    QStringList Draw(std::int64_t page);

private:
    /// A line of a panel: a text, something drawn, or that and a text behind it.
    struct Row {
        QString text;
        double size = 0;
        bool bold = false;
        QSizeF drawn = {};
        std::function<void(const QRectF& place)> draw = {};
    };
    enum Corner { kTopLeft, kTopRight, kBottomLeft, kBottomRight };

    void DrawTitle();
    void DrawLegend();
    void DrawKey(std::int64_t page);
    void DrawKeyCells(const QRectF& place, std::int64_t page);
    void DrawScaleBar(const QRectF& place);
    double BarFeet() const;
    void AddWaters(std::vector<Row>& rows);
    void AddSpots(std::vector<Row>& rows, bool platforms);
    void AddPipelines(std::vector<Row>& rows);
    Row Line(const QString& text) const;
    Row Heading(const QString& text) const;
    /// Draws it in the corner, or where that is taken in the next one that is free. Without room
    /// in any it is left out, by `name`.
    void DrawPanel(const QString& name, Corner wanted, const std::vector<Row>& rows);
    std::optional<QRectF> FindPlace(Corner wanted, const QSizeF& size) const;

    const PrintPlan& plan_;
    const PageView& view_;
    const MapLook& look_;
    Paper& paper_;
    PageLabels& labels_;
    std::vector<QRectF> taken_;
    QStringList leftOut_;
};

}  // namespace workbench
