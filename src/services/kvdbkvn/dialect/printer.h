#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "services/kvdbkvn/dialect/ast.h"
#include "services/kvdbkvn/dialect/context.h"
#include "services/kvdbkvn/dialect/dates.h"
#include "services/kvdbkvn/dialect/types.h"

namespace kv::dialect {

/// Thrown when the text to print gets out of proportion to the text that was read: forms that name
/// an operand several times can be put into one another.
struct TooLong {};

/// Prints a statement for SQLite or PostgreSQL. One printer prints one statement.
class Printer {
public:
    /// `mostText`: the longest text that is printed, in bytes.
    Printer(const Context& context, std::size_t mostText, std::vector<std::string>& notes);

    /// Empty when the engine has no counterpart.
    std::string Print(const Statement& statement);

private:
    /// How tightly the outermost operator of an expression binds.
    enum class Rank { kAny, kAnd, kNot, kPredicate, kSum, kProduct, kSign, kPrimary };

    /// What rows are ordered by: one of their columns, or an expression.
    struct SortKey {
        std::optional<std::size_t> column;
        const Expr* expr = nullptr;
        bool descending = false;
        Nulls nulls = Nulls::kDefault;
    };

    /// What literals must be written as for the columns of a union to get their types.
    using ColumnForms = std::vector<Type>;

    bool ForPostgres() const { return context_.target == Target::kPostgres; }

    void Put(std::string_view text);
    void Put(std::size_t number);
    template <typename List, typename PutOne>
    void PutList(const List& list, PutOne putOne);

    // Statements
    void PutStatement(Query* const& query);
    void PutStatement(const InsertStatement& insert);
    void PutStatement(const DeleteStatement& statement);
    void PutStatement(const UpdateStatement& update);
    void PutStatement(const CreateTableStatement& create);
    void PutStatement(const DropTableStatement& drop);
    void PutStatement(const OtherDefinition& definition);
    void PutStatement(const GrantStatement& grant);
    void PutStatement(const CommitStatement& commit);
    void PutAssignment(const Assignment& assignment);
    void PutColumn(const ColumnDefinition& column, bool inPrimaryKey);
    void PutKey(const KeyDefinition& key);
    void PutWhere(const Expr* where);
    std::vector<std::string_view> GrantedPrivileges(const GrantStatement& grant);
    bool PutLiteralRows(const Query& query);

    // Names
    bool HasSchema(std::string_view name);
    void PutName(std::string_view name);
    void PutNames(const std::vector<std::string_view>& names);
    void PutNamesInBrackets(const std::vector<std::string_view>& names);
    void PutTableName(const TableName& table);

    // Queries
    /// `named`: whether its columns are to have the names kv1, kv2 and so on.
    void PutQuery(const Query& query, bool outermost, bool named = false);
    void PutMembers(const Query& query, const ColumnForms& forms, bool named);
    void PutMember(const Member& member, const ColumnForms& forms, bool named);
    void PutSelect(const Select& select, const ColumnForms& forms, bool named);
    void PutSelectItem(const SelectItem& item, Type form);
    void PutFrom(const Select& select);
    void PutTableRef(const TableRef& ref);
    void PutTableDictionary();
    ColumnForms FormsOf(const Query& query) const;
    void PutNamedQueries(const Query& query);
    void PutRowLimits(const Query& query);

    // Order
    std::vector<SortKey> SortKeysOf(const Query& query, bool settled) const;
    void PutOrderOfRows(const Query& query, const std::vector<SortKey>& keys);
    void PutOrdinals(const std::vector<SortKey>& keys);
    void PutWrapped(const Query& query, const ColumnForms& forms, const std::vector<SortKey>& keys);
    void PutSortKey(const SortKey& key, Type type, const std::function<void()>& putValue);
    void PutDirection(const SortKey& key);
    static Type ColumnType(const Query& query, std::size_t column, const ColumnForms& forms);

    // Expressions
    Rank RankOf(const Expr& expr) const;
    void PutExpr(const Expr& expr);
    /// In brackets if its operator binds less tightly.
    void PutExpr(const Expr& expr, Rank atLeast);
    void PutText(const Expr& expr);
    void PutColumnName(const Expr& column);
    void PutConcat(const Expr& concat, bool emptyIsNull);
    void PutConcatPart(const Expr& part);
    void PutConcatCall(std::span<const Expr* const> parts);
    bool IsTidied(const Expr& expr) const;
    void PutTidied(const std::function<void()>& putNumber);
    void PutUntidied(const Expr& expr, const std::function<void()>& put);
    void PutArithmetic(const Expr& expr);
    void PutReckoning(const Expr& expr);
    void PutOperand(const Expr& expr, Rank atLeast);
    void PutChain(const Expr& chain, std::string_view between, Rank atLeast);
    void PutInGroups(std::span<const Expr* const> items, std::string_view between,
                     const std::function<void(const Expr*)>& putItem);
    void PutLike(const Expr& like);
    void PutCast(const Expr& cast);

    // Comparisons. `sides`: all that are compared with one another
    using Sides = std::span<const Expr* const>;
    static bool ComparesNumbers(Sides sides);
    bool Adapts(const Expr& expr) const;
    bool ComparesByByte(const Expr& expr, Sides sides) const;
    void PutComparison(const Expr& comparison);
    void PutComparand(const Expr& expr, const Expr& other, std::string_view sign);
    void PutSide(const Expr& expr, Sides sides, bool byOrder);
    void PutBetween(const Expr& between);
    void PutIn(const Expr& in);
    void PutInQuery(const Expr& in);
    void PutCase(const Expr& choice);
    void PutNested(const Query& query);

    // Dates
    void PutDate(const Expr& date);
    void PutDateText(const std::string& date);
    void PutDateArithmetic(const Expr& expr);
    void PutDays(const Expr& days, char sign, const std::function<void()>& putDate);
    void PutSysdate(const Expr& call);
    void PutToDate(const Expr& call);
    void PutInCentury(const DateFormat& format, const Expr& text,
                      const std::function<void()>& putDate);
    void PutTrunc(const Expr& call);
    void PutTruncatedDate(const Expr& call);
    void PutDateToChar(const Expr& date, const DateFormat& format);
    void PutNumberToChar(const Expr& number, std::string_view format);

    // Functions
    struct Function;
    static const Function* FindFunction(const Expr& call);
    void PutCall(const Expr& call);
    void PutDecode(const Expr& call);
    void PutDecodeTest(const Expr& value, const Expr& search);
    void PutDecodeSearch(const Expr& value, const Expr& search);
    void PutBesideNumber(const Expr& expr);
    void PutChoice(const Expr& choice, Type type);
    void PutDecodeResult(const Expr& result, Type first);
    void PutAsTextLiteral(const Expr& expr);
    void PutInteger(const Expr& expr);
    void PutNvl(const Expr& call);
    void PutSubstr(const Expr& call);
    void PutSubstrFrom(const Expr& call, const std::function<void()>& putStart);
    void PutSubstrAnywhere(const Expr& call);
    void PutToChar(const Expr& call);
    void PutToNumber(const Expr& call);
    void PutAsNumber(const Expr& expr);
    void PutTextOf(const Expr& call);
    void PutPlainCall(const Expr& call, const std::function<void(const Expr&)>& putArgument);
    void PutNumberOf(const Expr& call);
    void PutNumericOf(const Expr& call, std::size_t numeric);
    void PutTidiedNumberOf(const Expr& call);
    void PutInstr(const Expr& call);
    void PutConcatOf(const Expr& call);
    void PutTrimmed(const Expr& call);
    void PutPadded(const Expr& call);
    void PutRound(const Expr& call);
    void PutMod(const Expr& call);
    void PutRegexpReplace(const Expr& call);
    void PutNvl2(const Expr& call);
    void PutExtreme(const Expr& call);
    void PutLargestOrSmallest(const Expr& call);
    void PutReplace(const Expr& call);
    void PutLeaseSort(const Expr& call);

    /// The column of the rows being ordered that an expression is; only inside of `PutWrapped`.
    std::optional<std::size_t> OutputOf(const Expr& expr) const;

    const Context& context_;
    std::size_t mostText_;
    std::vector<std::string>& notes_;
    std::string out_;
    std::vector<std::pair<std::string_view, bool>> schemas_;
    const std::vector<SelectItem>* outputs_ = nullptr;
    int insideNot_ = 0;
    bool insideNumber_ = false;
    std::size_t unnamedQueries_ = 0;
};

/// Index of the select item that an order's key means: by its number, its alias, or as the same
/// expression. Without a value where it is an expression of its own.
std::optional<std::size_t> FindItem(const std::vector<SelectItem>& items, const Expr& key);

template <typename List, typename PutOne>
void Printer::PutList(const List& list, PutOne putOne) {
    bool first = true;
    for (const auto& element : list) {
        if (!first) Put(", ");
        first = false;
        putOne(element);
    }
}

}  // namespace kv::dialect
