#pragma once

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFontMetrics>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRect>
#include <QStringList>

#include "window/templates/dialog_template.h"

/// What a program of Qt's own makes of the rows of a template.
namespace bench {

inline QWidget* MakePlain(kv::ControlKind kind, const QString& text, const QStringList& rows,
                          QWidget* parent) {
    using enum kv::ControlKind;
    switch (kind) {
        case kLabel:
            return new QLabel(text, parent);
        case kGroupBox:
            return new QGroupBox(text, parent);
        case kEdit:
            return new QLineEdit(text, parent);
        case kDropDown:
        case kDropList: {
            auto* box = new QComboBox(parent);
            box->setEditable(kind == kDropDown);
            for (const QString& each : rows)
                box->addItem(each);
            return box;
        }
        case kRadio:
            return new QRadioButton(text, parent);
        case kCheckBox:
            return new QCheckBox(text, parent);
        default:
            return new QPushButton(text, parent);
    }
}

/// A dialog unit in pixels of the font.
inline QSizeF DialogUnit() {
    const QFontMetrics metrics(QApplication::font());
    const QString letters = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
    return {metrics.horizontalAdvance(letters) / 52.0 / 4, metrics.height() / 8.0};
}

inline QRect InPixels(const kv::DialogUnits& place, const QSizeF& unit) {
    return {qRound(place.x * unit.width()), qRound(place.y * unit.height()),
            qRound(place.width * unit.width()), qRound(place.height * unit.height())};
}

}  // namespace bench
