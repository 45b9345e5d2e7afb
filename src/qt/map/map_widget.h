#pragma once

#include <QWidget>

#include "base/export.h"
#include "qt/map/map_view.h"

class QPainter;

namespace kv::map {

/// A widget that shows a map and lets the user move it: the wheel, "+" and "-" zoom, the arrow keys
/// pan, "Home" shows all. Until then it shows all of the map, whatever its size.
class KVGUICTL_API MapWidget : public QWidget {
public:
    explicit MapWidget(QWidget* parent);

    const MapView& View() const { return view_; }
    void ShowAll();
    /// Zooms about the middle.
    void ZoomBy(double factor);

protected:
    MapView& ChangeView() { return view_; }
    /// The user, or what they asked for, moved the map: it stays from now on.
    void Moved();
    bool MovedByUser() const { return movedByUser_; }
    void ForgetMoves() { movedByUser_ = false; }
    /// Whether the user got here, or works here, by keys.
    bool ByKeys() const { return byKeys_; }
    /// The frame that tells those where the keys go.
    void DrawKeyFrame(QPainter& painter) const;

    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    MapView view_;
    bool movedByUser_ = false;
    bool byKeys_ = false;
};

}  // namespace kv::map
