#pragma once

#include <string>
#include <vector>

#include "workbench/dataset.h"

namespace workbench {

/// One comment on a well.
struct WellComment {
    int number = 0;  ///< among those on its well
    std::string text;
    std::string user;
    std::string date;  ///< "YYYY-MM-DD HH:MM:SS"
    bool operator==(const WellComment&) const = default;
};

/// The comments of all users on the wells of the current dataset, in a table that they share. Each
/// call has a short connection of its own. Failures of the database are thrown, as CKvException.
namespace well_comments {

/// The most bytes of a comment, and of its user's name.
inline constexpr std::size_t kMostText = 80;
inline constexpr std::size_t kMostUser = 20;

/// The table, with its owner ahead.
std::string Table();
/// The names of all tables of comments that there are, of whatever dataset.
std::vector<std::string> Tables();
/// Whether the current dataset has one.
bool Exist();

/// Those on a well, by its API number, in the order in which they were added.
std::vector<WellComment> Of(const std::string& well);

/// Throws for a comment that is too long. A longer name of a user is cut.
void Add(const std::string& well, const std::string& text, const std::string& user);
/// Gives a comment another text, another user and the present date. False, with nothing changed,
/// when it is not any more what it was.
bool Change(const std::string& well, const WellComment& was, const std::string& text,
            const std::string& user);
/// Likewise.
bool Remove(const std::string& well, const WellComment& was);

/// Lets everybody read a table of comments, by its name.
void LetAllRead(const std::string& table);

}  // namespace well_comments

}  // namespace workbench
