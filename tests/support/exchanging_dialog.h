#pragma once

#include "support/dialog_fixture.h"

namespace test {

/// A dialog that a host derives with data of its own, and how often it was shown and taken.
template <typename Dialog>
class Exchanging : public Dialog {
public:
    using Dialog::Dialog;

    int shown = 0;
    int taken = 0;

    void DoDataExchange(CDataExchange* exchange) override {
        Dialog::DoDataExchange(exchange);
        ++(exchange->m_bSaveAndValidate ? taken : shown);
    }
};

}  // namespace test
