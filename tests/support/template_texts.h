#pragma once

#include <vector>

namespace test {

/// What is to stand in the templates is written out once more beside this function, by hand, so
/// that a comparison does not take both its sides from one table.
///
/// Compares a template with it: its caption, and of every row the id, the kind, the text, and
/// whether it starts sorted, read-only, disabled or hidden.
void ExpectToldTexts(int id);

/// The templates that are written out there, by their ids, in ascending order.
std::vector<int> ToldTemplates();

}  // namespace test
