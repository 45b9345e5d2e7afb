#pragma once

#include <QObject>
#include <QWidget>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "window/node.h"

namespace test {

/// A person who acts at random on whatever window is in front, with real keys and mouse buttons,
/// and after so many acts wants it closed.
class RandomPerson : public QObject {
public:
    /// `files` are paths that file dialogs are given, in the machine's form.
    RandomPerson(unsigned seed, int acts, std::vector<QString> files);

    bool GaveUp() const { return gaveUp_; }

private:
    void Look();
    void Act();
    void OnPopup(QWidget& popup);
    void OnOthersDialog(QWidget& dialog);
    void OnWindow(kv::Node& window);
    void OnControl(kv::Node& control, QWidget& widget);
    void OnButton(QWidget& widget);
    void OnEdit(QWidget& widget);
    void OnRows(QWidget& widget);
    void OnCombo(QWidget& widget);
    void OnSpin(QWidget& widget);
    void Leave(kv::Node& window);

    void PutRight();
    void PressKey();
    void Type();
    void Click(QWidget& widget, Qt::MouseButton button = Qt::LeftButton);
    void DoubleClick(QWidget& widget);
    void Drag(QWidget& widget);
    void Wheel(QWidget& widget);
    void AskForMenu(QWidget& widget);
    QPoint PlaceIn(const QWidget& widget);
    Qt::KeyboardModifiers Held();

    /// One of 0 to count - 1.
    int Any(int count);
    bool Chance(int percent) { return Any(100) < percent; }
    template <typename List>
    auto& AnyOf(List& list) {
        return list[static_cast<typename List::size_type>(Any(static_cast<int>(list.size())))];
    }

    std::mt19937 random_;
    int actsLeft_;
    int turnsLeft_;
    bool gaveUp_ = false;
    std::vector<QString> files_;
};

}  // namespace test
