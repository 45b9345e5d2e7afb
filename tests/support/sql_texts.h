#pragma once

#include <string>
#include <vector>

namespace kv::test {

/// A latitude and longitude box in degrees.
struct SqlBox {
    double minLat = 0;
    double maxLat = 0;
    double minLon = 0;
    double maxLon = 0;
};

/// Columns of an area and a block in a table of the host's.
struct SqlPlace {
    std::string area;
    std::string block;
    std::string ext;
};

/// What the dialogs put into their statements: a host's tables and columns, a user's picks.
struct SqlValues {
    std::string owner = "NORVADON";
    std::string dataset = "gulf_mexico";
    /// One area under its three names, and one of its blocks with the extension.
    std::string areaName;
    std::string areaCode;
    std::string mmsCode;
    std::string block;
    SqlBox box;
    std::vector<std::string> namesInBox;
    std::vector<std::string> mmsCodesInBox;
    /// What areas are searched with: part of a name, start of a code, end of an MMS code, and the
    /// starts of all three.
    std::string namePart;
    std::string codeStart;
    std::string mmsEnd;
    std::string nameStart;
    std::string mmsStart;
    /// A column of lease numbers, tables that have it, and what is searched. The first table also
    /// has `lplana`, `lessee` and `operator`.
    std::string leaseColumn;
    std::vector<std::string> leaseTables;
    std::string leasePart;
    std::string leaseStart;
    std::string leaseEnd;
    std::string datasetPart;
    std::string companyPart;
    std::string expressionStart;
    std::string operatorStart;
    /// A table with the places of plans and, in each row, a second set of them.
    std::string planTable;
    SqlPlace plan;
    SqlPlace otherPlan;
    /// Areas in the user's order: a place that is given to another area.
    int place = 0;
    std::string movedArea;
    int defaultPlace = 0;
    /// Neighbors of `block`, as they are stored for this machine.
    std::string machine;
    std::vector<std::string> neighbors;
    /// What is granted.
    std::string grantedTable;
};

struct SqlText {
    /// Fit for the name of a test.
    std::string name;
    std::string sql;
    /// Of a statement that is no query: a query that shows what it has done.
    std::string shows = {};
};

/// Every form of query that the dialogs build.
std::vector<SqlText> SqlQueries(const SqlValues& values);

/// Every other statement that they build.
std::vector<SqlText> SqlChanges(const SqlValues& values);

/// What they build from inputs that leave a list, a column or a table empty or hold a quote: no
/// server takes it.
std::vector<SqlText> SqlFailures(const SqlValues& values);

/// The text of that name among the queries; std::out_of_range where there is none.
std::string SqlQueryNamed(const std::string& name, const SqlValues& values);

}  // namespace kv::test
