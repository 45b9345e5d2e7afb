#include <gtest/gtest.h>

#include "support/template_texts.h"

namespace {

TEST(PrintTemplates, HoldTheirTexts) {
    for (const int id : {15102, 15134})
        test::ExpectToldTexts(id);
}

}  // namespace
