#include <gtest/gtest.h>

#include "support/template_texts.h"

namespace {

TEST(PickerTemplates, HoldTheirTexts) {
    for (const int id : {13060, 15109, 15110})
        test::ExpectToldTexts(id);
}

}  // namespace
