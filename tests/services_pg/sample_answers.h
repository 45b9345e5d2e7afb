#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "support/sql_texts.h"

namespace test {

using Answer = std::vector<std::string>;

/// What the sample dataset answers to each query of `SqlQueries`, by its name: rows in order, cells
/// joined by "|", null as "". Worked out from the rows that the generator makes, without SQL. The
/// values must outlive the answers.
std::map<std::string, std::function<Answer()>> SampleAnswers(const kv::test::SqlValues& values);

/// A box that holds the block's outline and little more, to six decimals.
kv::test::SqlBox BoxAround(const std::string& areaCode, const std::string& block);

/// Names, or MMS codes, of the areas that have a corner of a block in the box; an area without an
/// MMS code gives "".
std::vector<std::string> NamesInBox(const kv::test::SqlBox& box);
std::vector<std::string> MmsCodesInBox(const kv::test::SqlBox& box);

}  // namespace test
