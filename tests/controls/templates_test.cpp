#include <gtest/gtest.h>

#include "support/template_texts.h"

namespace {

TEST(ControlTemplates, HoldTheirTexts) {
    for (const int id : {12001})
        test::ExpectToldTexts(id);
}

}  // namespace
