#include <gtest/gtest.h>

#include "support/template_texts.h"

namespace {

TEST(QualifierTemplates, HoldTheirTexts) {
    for (const int id : {180, 12000, 12002, 12003, 13000, 13001, 15130})
        test::ExpectToldTexts(id);
}

}  // namespace
