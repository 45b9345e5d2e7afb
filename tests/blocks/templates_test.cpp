#include <gtest/gtest.h>

#include "support/template_texts.h"

namespace {

TEST(BlockTemplates, HoldTheirTexts) {
    for (const int id : {182, 15112, 15129})
        test::ExpectToldTexts(id);
}

}  // namespace
