#include <gtest/gtest.h>

#include "support/template_texts.h"

namespace {

TEST(RecordTemplates, HoldTheirTexts) {
    for (const int id : {15117, 15126, 15131})
        test::ExpectToldTexts(id);
}

}  // namespace
