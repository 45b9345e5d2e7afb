#pragma once

#include <QColor>
#include <QPolygonF>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "base/export.h"
#include "qt/map/feature_layer.h"
#include "qt/map/map_block.h"
#include "qt/map/map_widget.h"

namespace kv::qt {

/// The map of a `BlockMapWindow`.
class KVGUICTL_API BlockMapCanvas : public map::MapWidget {
public:
    static constexpr std::size_t kTints = 6;

    explicit BlockMapCanvas(std::vector<MapBlock> blocks, QWidget* parent = nullptr);

    const std::vector<MapBlock>& Blocks() const { return blocks_; }
    const std::vector<std::size_t>& Picks() const { return picks_; }
    std::optional<std::size_t> Hovered() const { return hovered_; }

    bool IsPicked(std::size_t block) const { return isPicked_[block]; }
    void SetPicked(std::size_t block, bool picked);
    void ClearPicks();

    std::vector<std::string> Areas() const;
    void ShowArea(const std::string& area);
    /// The block at a place of the widget.
    std::optional<std::size_t> BlockAt(const QPointF& at) const;

    std::function<void()> onPicksChanged;
    std::function<void()> onHovered;

    QSize sizeHint() const override { return {720, 520}; }
    QSize minimumSizeHint() const override { return {240, 180}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    /// Gives areas beside one another different tints.
    void TintAreas();
    QPolygonF Ring(std::size_t block) const;
    double SizeOf(std::size_t block) const;
    QPointF Middle(std::size_t block) const;
    void DrawBlocks(QPainter& painter);
    void DrawBlockLabels(QPainter& painter, const std::vector<std::size_t>& blocks);
    void DrawAreaLabels(QPainter& painter);
    void DrawBand(QPainter& painter);
    /// Picks what the rubber band holds, or takes it out.
    void TakeBand(bool picked);
    void Hover(std::optional<std::size_t> block);
    void Told();

    std::vector<MapBlock> blocks_;
    map::FeatureLayer layer_;
    /// Of each block, by its area.
    std::vector<std::size_t> tints_;
    std::map<std::string, map::Box> areas_;
    std::vector<bool> isPicked_;
    std::vector<std::size_t> picks_;
    std::optional<std::size_t> hovered_;

    Qt::MouseButton held_ = Qt::NoButton;
    bool dragging_ = false;
    QPointF pressedAt_;
    QPointF lastAt_;
};

}  // namespace kv::qt
