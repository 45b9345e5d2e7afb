#include <gtest/gtest.h>

#include "support/template_texts.h"

namespace {

TEST(MapBuildingTemplates, HoldTheirTexts) {
    for (const int id : {250, 13002, 13062, 15100, 15101, 15103, 15108, 15114, 15128, 15133})
        test::ExpectToldTexts(id);
}

}  // namespace
