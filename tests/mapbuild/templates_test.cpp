#include <gtest/gtest.h>

#include "support/template_texts.h"

namespace {

TEST(MapBuildingTemplates, HoldTheirTexts) {
    for (const int id : {250, 13002, 13062, 15103, 15114})
        test::ExpectToldTexts(id);
}

}  // namespace
