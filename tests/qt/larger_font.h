#pragma once

#include <QApplication>
#include <QFont>

namespace test {

/// The application's font is that many times as large, as long as it lives.
class LargerFont {
public:
    explicit LargerFont(double factor) {
        QFont larger = former_;
        larger.setPointSizeF(former_.pointSizeF() * factor);
        QApplication::setFont(larger);
    }
    ~LargerFont() { QApplication::setFont(former_); }
    LargerFont(const LargerFont&) = delete;
    LargerFont& operator=(const LargerFont&) = delete;

private:
    QFont former_ = QApplication::font();
};

}  // namespace test
