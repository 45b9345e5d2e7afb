#pragma once

namespace test {

/// The registered image of that id is a square of so many pixels, each of a colour of its palette
/// or transparent, and is nowhere empty as a whole.
void ExpectWhole(int id, int size);

}  // namespace test
