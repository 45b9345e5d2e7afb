#include <gtest/gtest.h>

#include "support/template_texts.h"

namespace {

TEST(DrawingTemplates, HoldTheirTexts) {
    for (const int id :
         {2000, 12004, 12005, 12006, 13006, 13059, 13063, 13067, 15111, 15116, 15122, 15125, 15127})
        test::ExpectToldTexts(id);
}

}  // namespace
