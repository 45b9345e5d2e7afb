#pragma once

#include <QLabel>

namespace workbench {

/// A line of text that takes no more room than there is: what does not fit ends in dots, and is
/// told whole where the mouse rests on it.
class ElidedLabel : public QLabel {
    Q_OBJECT
public:
    explicit ElidedLabel(QWidget* parent = nullptr) : QLabel(parent) {}

    /// Asks for the room of that text, too, so that the shorter ones that come and go move nothing.
    void SetWidest(const QString& text);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /// The text as it is seen.
    QString Shown() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    QString widest_;
};

}  // namespace workbench
