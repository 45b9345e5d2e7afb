#include <gtest/gtest.h>

#include "support/template_texts.h"

namespace {

TEST(CoordinateToolTemplates, HoldTheirTexts) {
    for (const int id : {7007, 7008, 14608, 15113})
        test::ExpectToldTexts(id);
}

}  // namespace
