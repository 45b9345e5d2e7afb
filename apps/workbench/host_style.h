#pragma once

#include <QProxyStyle>

namespace workbench {

/// The platform's style, but that OK and Cancel look in the host's boxes as in the library's
/// dialogs: they have no pictures.
class HostStyle : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
};

}  // namespace workbench
