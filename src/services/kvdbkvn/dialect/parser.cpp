#include "services/kvdbkvn/dialect/parser.h"

#include <algorithm>
#include <array>
#include <optional>

#include "base/text.h"
#include "services/kvdbkvn/dialect/dates.h"
#include "services/kvdbkvn/dialect/row_number.h"
#include "services/kvdbkvn/dialect/type_names.h"

namespace kv::dialect {
namespace {

constexpr const char* kEmptyList = "missing expression: the list behind \"in\" is empty";

constexpr std::array<std::string_view, 7> kWordsOfDefinitions = {
    "alter", "analyze", "comment", "create", "drop", "rename", "truncate"};

class Parser {
public:
    Parser(const std::vector<Token>& tokens, Arena& arena) : tokens_(tokens), arena_(arena) {}

    Statement ParseStatement() {
        Statement statement = ParseByFirstWord();
        if (Now().kind != TokenKind::kEnd) Stop();
        return statement;
    }

private:
    /// Counts how deep the reading is in forms that enclose one another.
    class Nesting {
    public:
        explicit Nesting(Parser& parser) : parser_(parser) {
            if (++parser_.depth_ > kDeepest) parser_.Stop();
        }
        ~Nesting() { --parser_.depth_; }
        Nesting(const Nesting&) = delete;
        Nesting& operator=(const Nesting&) = delete;

    private:
        Parser& parser_;
    };

    // Tokens

    const Token& Now() const { return tokens_[at_]; }
    const Token& Next() const { return tokens_[std::min(at_ + 1, tokens_.size() - 1)]; }
    [[noreturn]] void Stop() const { throw Unreadable{Now().text}; }

    /// The last token is the end, which nothing takes.
    const Token& Take() { return tokens_[at_++]; }

    static bool IsWord(const Token& token, std::string_view text) {
        return token.kind == TokenKind::kName && EqualsNoCase(token.text, text);
    }

    bool TakeIf(Word word) {
        if (!Now().Is(word)) return false;
        ++at_;
        return true;
    }
    bool TakeIf(char sign) {
        if (!Now().Is(sign)) return false;
        ++at_;
        return true;
    }
    bool TakeIf(std::string_view word) {
        if (!IsWord(Now(), word)) return false;
        ++at_;
        return true;
    }
    template <typename What>
    void Expect(What what) {
        if (!TakeIf(what)) Stop();
    }

    static bool IsName(const Token& token) {
        return token.kind == TokenKind::kQuotedName ||
               (token.kind == TokenKind::kName && token.word == Word::kNone);
    }
    std::string_view ExpectName() {
        if (!IsName(Now())) Stop();
        return Take().text;
    }
    std::string_view TakeAlias() {
        if (TakeIf(Word::kAs)) return ExpectName();
        return IsName(Now()) && !EndsAlias() ? Take().text : std::string_view();
    }
    /// Whether a word stands here that could be an alias, but is known by what follows it.
    bool EndsAlias() const {
        if (IsWord(Now(), "offset")) return Next().kind == TokenKind::kNumber;
        if (IsWord(Now(), "fetch")) return IsWord(Next(), "first") || IsWord(Next(), "next");
        return IsWord(Now(), "using") && Next().Is('(');
    }

    template <typename Element>
    std::vector<Element> ParseList(Element (Parser::*parse)()) {
        std::vector<Element> list;
        do
            list.push_back((this->*parse)());
        while (TakeIf(','));
        return list;
    }
    std::vector<std::string_view> ParseNamesInBrackets() {
        Expect('(');
        std::vector<std::string_view> names = ParseList(&Parser::ExpectName);
        Expect(')');
        return names;
    }

    TableName ParseTableName() {
        const std::string_view first = ExpectName();
        if (!TakeIf('.')) return {{}, first};
        return {first, ExpectName()};
    }

    // Statements

    Statement ParseByFirstWord() {
        if (BeginsQuery(Now()) || Now().Is('(')) return ParseQuery();
        if (TakeIf("insert")) return ParseInsert();
        if (TakeIf("delete")) return ParseDelete();
        if (TakeIf("update")) return ParseUpdate();
        if (TakeIf("grant")) return ParseGrant(false);
        if (TakeIf("revoke")) return ParseGrant(true);
        if (TakeIf("commit")) return ParseCommit();
        return ParseDefinition();
    }

    CommitStatement ParseCommit() {
        TakeIf("work");
        return {};
    }

    InsertStatement ParseInsert() {
        Expect(Word::kInto);
        InsertStatement insert;
        insert.table = ParseTableName();
        if (Now().Is('(') && !IsQueryAhead()) insert.columns = ParseNamesInBrackets();
        if (TakeIf(Word::kValues)) {
            Expect('(');
            insert.values = ParseList(&Parser::ParseExpr);
            Expect(')');
        } else {
            insert.query = ParseQuery();
        }
        return insert;
    }

    DeleteStatement ParseDelete() {
        TakeIf(Word::kFrom);
        DeleteStatement statement;
        statement.table = ParseTableName();
        statement.alias = TakeAlias();
        statement.where = ParseWhere();
        return statement;
    }

    UpdateStatement ParseUpdate() {
        UpdateStatement update;
        update.table = ParseTableName();
        update.alias = TakeAlias();
        Expect(Word::kSet);
        update.set = ParseList(&Parser::ParseAssignment);
        update.where = ParseWhere();
        return update;
    }

    Assignment ParseAssignment() {
        Assignment assignment;
        const bool several = Now().Is('(');
        assignment.columns =
            several ? ParseNamesInBrackets() : std::vector<std::string_view>{ExpectName()};
        Expect('=');
        if (several && !IsQueryAhead()) Stop();
        assignment.value = ParseExpr();
        return assignment;
    }

    Expr* ParseWhere() { return TakeIf(Word::kWhere) ? ParseExpr() : nullptr; }

    std::string_view ParsePrivilege() {
        const Token& token = Now();
        if (token.kind != TokenKind::kName) Stop();
        Take();
        if (token.Is(Word::kAll)) TakeIf("privileges");
        return token.text;
    }

    GrantStatement ParseGrant(bool revoke) {
        GrantStatement grant;
        grant.revoke = revoke;
        grant.privileges = ParseList(&Parser::ParsePrivilege);
        Expect(Word::kOn);
        grant.table = ParseTableName();
        if (revoke)
            Expect(Word::kFrom);
        else
            Expect("to");
        grant.grantees = ParseList(&Parser::ExpectName);
        if (!revoke && TakeIf(Word::kWith)) {
            Expect("grant");
            Expect("option");
            grant.grantOption = true;
        }
        return grant;
    }

    Statement ParseDefinition() {
        const bool known = std::ranges::any_of(
            kWordsOfDefinitions, [&](std::string_view word) { return IsWord(Now(), word); });
        if (!known) Stop();
        const bool ofTable = IsWord(Next(), "table");
        if (ofTable && TakeIf("create")) return ParseCreateTable();
        if (ofTable && TakeIf("drop")) return ParseDropTable();
        PassDefinition();
        return OtherDefinition{};
    }

    /// What is left to the engine must not hold what it takes otherwise.
    void PassDefinition() {
        for (; Now().kind != TokenKind::kEnd; ++at_)
            if (BeginsQuery(Now()) || Now().text == "''" || Now().kind == TokenKind::kQuotedName)
                Stop();
    }

    DropTableStatement ParseDropTable() {
        Expect("table");
        const DropTableStatement drop{ParseTableName()};
        if (TakeIf("cascade")) Expect("constraints");
        TakeIf("purge");
        return drop;
    }

    CreateTableStatement ParseCreateTable() {
        Expect("table");
        CreateTableStatement create;
        create.table = ParseTableName();
        Expect('(');
        do {
            if (!ParseKey(create)) create.columns.push_back(ParseColumn());
        } while (TakeIf(','));
        Expect(')');
        return create;
    }

    /// False when what stands here is a column.
    bool ParseKey(CreateTableStatement& create) {
        KeyDefinition key;
        if (IsWord(Now(), "constraint") && IsName(Next())) {
            Take();
            key.name = ExpectName();
        }
        key.primary = IsWord(Now(), "primary") && IsWord(Next(), "key");
        const bool unique = Now().Is(Word::kUnique) && Next().Is('(');
        if (!key.primary && !unique) {
            if (!key.name.empty()) Stop();
            return false;
        }
        at_ += key.primary ? 2 : 1;
        key.columns = ParseNamesInBrackets();
        TakeIf("enable");
        create.keys.push_back(std::move(key));
        return true;
    }

    ColumnDefinition ParseColumn() {
        ColumnDefinition column;
        column.name = ExpectName();
        ParseType(column);
        while (ParseColumnRule(column))
            TakeIf("enable");
        return column;
    }

    void ParseType(ColumnDefinition& column) {
        column.type = ExpectName();
        if (EqualsNoCase(column.type, "double")) Expect("precision");
        if (EqualsNoCase(column.type, "long")) TakeIf("raw");
        if (!TakeIf('(')) return;
        do {
            if (Now().kind != TokenKind::kNumber) Stop();
            column.sizes.push_back(Take().text);
        } while (TakeIf(','));
        if (!TakeIf("byte")) TakeIf("char");
        Expect(')');
    }

    bool ParseColumnRule(ColumnDefinition& column) {
        if (TakeIf("default")) {
            column.defaultValue = ParseConcat();
            return true;
        }
        if (TakeIf(Word::kNot)) {
            Expect(Word::kNull);
            return column.notNull = true;
        }
        if (TakeIf("primary")) {
            Expect("key");
            return column.primaryKey = true;
        }
        if (TakeIf(Word::kUnique)) return column.unique = true;
        return TakeIf(Word::kNull);
    }

    // Queries

    static bool BeginsQuery(const Token& token) {
        return token.Is(Word::kSelect) || token.Is(Word::kWith);
    }

    bool IsOpenAt(std::size_t index) const { return tokens_[index].Is('('); }

    /// Whether the bracket that stands here holds a query, and not an expression that begins with
    /// one. A query in brackets is followed by what may follow a member.
    bool IsQueryAhead() const {
        std::size_t inner = at_;
        while (IsOpenAt(inner))
            ++inner;
        if (inner == at_ || !BeginsQuery(tokens_[inner])) return false;
        for (std::size_t open = inner - 1; open > at_; --open) {
            const std::size_t close = tokens_[open].partner;
            if (close == Token::kNoPartner || !MayFollowMember(tokens_[close + 1])) return false;
        }
        return true;
    }

    static bool MayFollowMember(const Token& token) {
        return token.Is(')') || token.Is(Word::kUnion) || token.Is(Word::kIntersect) ||
               token.Is(Word::kMinus) || token.Is(Word::kOrder) || IsWord(token, "offset") ||
               IsWord(token, "fetch");
    }

    Query* ParseQuery() {
        const Nesting nesting(*this);
        Query& query = arena_.queries.emplace_back();
        if (TakeIf(Word::kWith)) query.with = ParseList(&Parser::ParseNamedQuery);
        AddMember(query, SetOperator::kUnion);
        while (const auto op = TakeSetOperator())
            AddMember(query, *op);
        if (TakeIf(Word::kOrder)) {
            Expect(Word::kBy);
            query.orderBy = ParseList(&Parser::ParseOrderItem);
        }
        ParseRowLimits(query);
        BoundByRowNumber(query, arena_);
        return TakeOutOfBrackets(query);
    }

    NamedQuery ParseNamedQuery() {
        NamedQuery named;
        named.name = ExpectName();
        if (Now().Is('(')) named.columns = ParseNamesInBrackets();
        Expect(Word::kAs);
        named.query = ParseQueryInBrackets();
        return named;
    }

    void ParseRowLimits(Query& query) {
        if (IsWord(Now(), "offset") && Next().kind == TokenKind::kNumber) {
            Take();
            query.skippedRows = ExpectCount();
            ExpectRows();
        }
        if (!TakeIf("fetch")) return;
        if (!TakeIf("first")) Expect("next");
        query.mostRows = Now().kind == TokenKind::kNumber ? ExpectCount() : 1;
        ExpectRows();
        Expect("only");
    }

    std::uint64_t ExpectCount() {
        const auto count = CountOf(Now().text);
        if (!count) Stop();
        Take();
        return *count;
    }

    void ExpectRows() {
        if (!TakeIf("rows")) Expect("row");
    }

    std::optional<SetOperator> TakeSetOperator() {
        if (TakeIf(Word::kUnion))
            return TakeIf(Word::kAll) ? SetOperator::kUnionAll : SetOperator::kUnion;
        if (TakeIf(Word::kIntersect)) return SetOperator::kIntersect;
        if (TakeIf(Word::kMinus)) return SetOperator::kMinus;
        return std::nullopt;
    }

    /// What needs no brackets loses them here.
    void AddMember(Query& query, SetOperator op) {
        if (!TakeIf('(')) {
            query.members.push_back({op, ParseSelect(), nullptr});
            return;
        }
        Query* inner = ParseQuery();
        Expect(')');
        const bool bare = inner->orderBy.empty() && inner->with.empty() && !IsBounded(*inner);
        if (bare && (query.members.empty() || inner->members.size() == 1)) {
            inner->members.front().op = op;
            query.members.insert(query.members.end(), inner->members.begin(), inner->members.end());
            return;
        }
        query.members.push_back({op, nullptr, inner});
    }

    /// Of a query that is nothing but an ordered one in brackets. An order behind the brackets
    /// replaces the one within.
    static Query* TakeOutOfBrackets(Query& query) {
        Query* inner = query.members.front().query;
        if (query.members.size() > 1 || !inner || !query.with.empty() || IsBounded(query))
            return &query;
        if (!query.orderBy.empty() && IsBounded(*inner)) return &query;
        if (!query.orderBy.empty()) inner->orderBy = std::move(query.orderBy);
        return inner;
    }

    OrderItem ParseOrderItem() {
        OrderItem item;
        item.key = ParseExpr();
        item.descending = TakeIf(Word::kDesc);
        if (!item.descending) TakeIf(Word::kAsc);
        if (!TakeIf("nulls")) return item;
        item.nulls = TakeIf("first") ? Nulls::kFirst : Nulls::kLast;
        if (item.nulls == Nulls::kLast) Expect("last");
        return item;
    }

    Select* ParseSelect() {
        Expect(Word::kSelect);
        Select& select = arena_.selects.emplace_back();
        select.distinct = TakeIf(Word::kDistinct) || TakeIf(Word::kUnique);
        if (!select.distinct) TakeIf(Word::kAll);
        select.items = ParseList(&Parser::ParseSelectItem);
        if (TakeIf(Word::kFrom)) ParseFrom(select);
        select.where = ParseWhere();
        if (TakeIf(Word::kGroup)) {
            Expect(Word::kBy);
            select.groupBy = ParseList(&Parser::ParseExpr);
        }
        if (TakeIf(Word::kHaving)) select.having = ParseExpr();
        return &select;
    }

    SelectItem ParseSelectItem() {
        if (Now().Is('*')) return {WithText(Make(ExprKind::kStar), Take().text)};
        Expr* expr = ParseExpr();
        return {expr, expr->kind == ExprKind::kStar ? std::string_view() : TakeAlias()};
    }

    void ParseFrom(Select& select) {
        bool merges = false;
        select.from.push_back(ParseTableRef(Join::kComma));
        while (true) {
            // Engines differ in what a comma and a join that merges columns make of each other.
            if (merges && Now().Is(',')) Stop();
            if (TakeIf(',')) {
                select.from.push_back(ParseTableRef(Join::kComma));
                continue;
            }
            const Token& begin = Now();
            const bool natural = TakeIf(Word::kNatural);
            const auto join = TakeJoin();
            if (!join && !natural) return;
            if (!join || (natural && *join == Join::kCross)) Stop();
            TableRef table = ParseTableRef(*join);
            table.natural = natural;
            if (*join != Join::kCross && !natural) ParseJoinCondition(table);
            merges = merges || natural || !table.common.empty();
            if (merges && HoldsComma(select.from)) throw Unreadable{begin.text};
            select.from.push_back(std::move(table));
        }
    }

    static bool HoldsComma(const std::vector<TableRef>& from) {
        return std::any_of(from.begin() + 1, from.end(),
                           [](const TableRef& ref) { return ref.join == Join::kComma; });
    }

    void ParseJoinCondition(TableRef& table) {
        if (TakeIf("using")) {
            table.common = ParseNamesInBrackets();
            return;
        }
        Expect(Word::kOn);
        table.on = ParseExpr();
    }

    std::optional<Join> TakeJoin() {
        struct Row {
            Word word;
            Join join;
            bool outer;
        };
        static constexpr Row kJoins[] = {{Word::kInner, Join::kInner, false},
                                         {Word::kCross, Join::kCross, false},
                                         {Word::kLeft, Join::kLeft, true},
                                         {Word::kRight, Join::kRight, true},
                                         {Word::kFull, Join::kFull, true}};
        if (TakeIf(Word::kJoin)) return Join::kInner;
        for (const Row& row : kJoins) {
            if (!TakeIf(row.word)) continue;
            if (row.outer) TakeIf("outer");
            Expect(Word::kJoin);
            return row.join;
        }
        return std::nullopt;
    }

    TableRef ParseTableRef(Join join) {
        TableRef ref;
        ref.join = join;
        if (Now().Is('('))
            ref.query = ParseQueryInBrackets();
        else
            ref.table = ParseTableName();
        ref.alias = TakeAlias();
        return ref;
    }

    Query* ParseQueryInBrackets() {
        Expect('(');
        Query* query = ParseQuery();
        Expect(')');
        return query;
    }

    // Expressions, from the loosest binding to the tightest

    Expr* Make(ExprKind kind, std::vector<Expr*> items = {}) {
        Expr& expr = arena_.exprs.emplace_back();
        expr.kind = kind;
        expr.items = std::move(items);
        return &expr;
    }

    Expr* ParseExpr() {
        const Nesting nesting(*this);
        return ParseChain(ExprKind::kOr, Word::kOr, &Parser::ParseAnd);
    }
    Expr* ParseAnd() { return ParseChain(ExprKind::kAnd, Word::kAnd, &Parser::ParseNot); }

    Expr* ParseChain(ExprKind kind, Word word, Expr* (Parser::*parse)()) {
        Expr* first = (this->*parse)();
        if (!Now().Is(word)) return first;
        Expr* chain = Make(kind, {first});
        while (TakeIf(word))
            chain->items.push_back((this->*parse)());
        return chain;
    }

    Expr* ParseNot() {
        if (!TakeIf(Word::kNot)) return ParsePredicate();
        const Nesting nesting(*this);
        return Make(ExprKind::kNot, {ParseNot()});
    }

    Expr* ParsePredicate() {
        if (TakeIf(Word::kExists)) {
            Expr* exists = Make(ExprKind::kExists);
            exists->query = ParseQueryInBrackets();
            return exists;
        }
        Expr* value = ParseConcat();
        if (Now().kind == TokenKind::kSign) return ParseComparison(value);
        if (TakeIf(Word::kIs)) {
            const bool negated = TakeIf(Word::kNot);
            Expect(Word::kNull);
            return Negated(Make(ExprKind::kIsNull, {value}), negated);
        }
        const bool negated = TakeIf(Word::kNot);
        if (TakeIf(Word::kLike)) return Negated(ParseLike(value), negated);
        if (TakeIf(Word::kBetween)) return Negated(ParseBetween(value), negated);
        if (TakeIf(Word::kIn)) return Negated(ParseIn(value), negated);
        if (negated) Stop();
        return value;
    }

    static Expr* Negated(Expr* expr, bool negated) {
        expr->negated = negated;
        return expr;
    }

    Expr* ParseComparison(Expr* left) {
        static constexpr std::array<char, 6> kComparisons = {
            '=', '<', '>', kNotEqualSign, kLessOrEqualSign, kMoreOrEqualSign};
        const Token& sign = Now();
        if (std::ranges::find(kComparisons, sign.sign) == kComparisons.end()) return left;
        Take();
        Expr* comparison = Make(ExprKind::kCompare, {left, ParseConcat()});
        comparison->text = sign.Is(kNotEqualSign) ? "<>" : sign.text;
        return comparison;
    }

    Expr* ParseLike(Expr* value) {
        Expr* like = Make(ExprKind::kLike, {value, ParseConcat()});
        if (TakeIf("escape")) like->items.push_back(ParseConcat());
        return like;
    }

    Expr* ParseBetween(Expr* value) {
        Expr* low = ParseConcat();
        Expect(Word::kAnd);
        return Make(ExprKind::kBetween, {value, low, ParseConcat()});
    }

    Expr* ParseIn(Expr* value) {
        Expr* in = Make(ExprKind::kIn, {value});
        if (IsQueryAhead()) {
            in->query = ParseQueryInBrackets();
            return in;
        }
        Expect('(');
        if (Now().Is(')')) throw Refused{kEmptyList};
        do
            in->items.push_back(ParseExpr());
        while (TakeIf(','));
        Expect(')');
        return in;
    }

    /// `+`, `-` and `||` are of one rank.
    Expr* ParseConcat() {
        static constexpr int kMostTurns = 50;
        Expr* left = ParseProduct();
        for (int turns = 0; Now().Is('+') || Now().Is('-') || Now().Is(kConcatSign); ++turns) {
            // Each turn from one to the other makes the tree a level deeper.
            if (turns > kMostTurns) Stop();
            left = Now().Is(kConcatSign) ? ParseConcatChain(left) : ParseSum(left);
        }
        return left;
    }

    Expr* ParseConcatChain(Expr* first) {
        Expr* chain = Make(ExprKind::kConcat);
        AddToConcat(*chain, first);
        while (TakeIf(kConcatSign))
            AddToConcat(*chain, ParseProduct());
        return chain;
    }

    static void AddToConcat(Expr& chain, Expr* part) {
        if (part->kind == ExprKind::kConcat)
            chain.items.insert(chain.items.end(), part->items.begin(), part->items.end());
        else
            chain.items.push_back(part);
    }

    Expr* ParseSum(Expr* first) { return ParseArithmetic(first, '+', '-', &Parser::ParseProduct); }
    Expr* ParseProduct() { return ParseArithmetic(ParseSigned(), '*', '/', &Parser::ParseSigned); }

    Expr* ParseArithmetic(Expr* first, char one, char other, Expr* (Parser::*parse)()) {
        if (!Now().Is(one) && !Now().Is(other)) return first;
        Expr* chain = Make(ExprKind::kArithmetic, {first});
        while (Now().Is(one) || Now().Is(other)) {
            chain->signs.push_back(Take().sign);
            chain->items.push_back((this->*parse)());
        }
        return chain;
    }

    Expr* ParseSigned() {
        if (!Now().Is('-') && !Now().Is('+')) return ParsePrimary();
        const Nesting nesting(*this);
        const bool minus = Take().Is('-');
        Expr* operand = ParseSigned();
        return minus ? Make(ExprKind::kNegate, {operand}) : operand;
    }

    Expr* ParsePrimary() {
        switch (Now().kind) {
            case TokenKind::kText:
                return ParseText();
            case TokenKind::kNumber:
                return WithText(Make(ExprKind::kNumber), Take().text);
            case TokenKind::kQuotedName:
                return ParseNamed();
            case TokenKind::kName:
                if (TakeIf(Word::kNull)) return Make(ExprKind::kNull);
                if (TakeIf(Word::kCase)) return ParseCase();
                if (IsWord(Now(), "cast") && Next().Is('(')) return ParseCast();
                if (Next().kind == TokenKind::kText) return ParseDate();
                return ParseNamed();
            case TokenKind::kSign:
                return ParseBracket();
            case TokenKind::kEnd:
                break;
        }
        Stop();
    }

    static Expr* WithText(Expr* expr, std::string_view text) {
        expr->text = text;
        return expr;
    }

    Expr* ParseText() {
        const std::string_view text = Take().text;
        if (text == "''") return Make(ExprKind::kNull);
        return WithText(Make(ExprKind::kText), text);
    }

    Expr* ParseBracket() {
        if (IsQueryAhead()) {
            Expr* query = Make(ExprKind::kQuery);
            query->query = ParseQueryInBrackets();
            return query;
        }
        Expect('(');
        std::vector<Expr*> items = ParseList(&Parser::ParseExpr);
        Expect(')');
        return items.size() == 1 ? items.front() : Make(ExprKind::kRow, std::move(items));
    }

    Expr* ParseNamed() {
        static constexpr std::size_t kMostParts = 3;
        Expr* named = Make(ExprKind::kColumn);
        named->names.push_back(ExpectName());
        while (TakeIf('.')) {
            if (TakeIf('*')) {
                named->kind = ExprKind::kStar;
                return named;
            }
            if (named->names.size() == kMostParts) Stop();
            named->names.push_back(ExpectName());
        }
        if (Now().Is('(')) ParseArguments(*named);
        if (named->kind == ExprKind::kColumn && named->names.size() == 1) ReadConstant(*named);
        return named;
    }

    /// A function that is called without brackets.
    void ReadConstant(Expr& named) const {
        const std::string_view name = named.names.front();
        if (EqualsNoCase(name, "sysdate")) named.kind = ExprKind::kCall;
        // Engines differ in the time zone.
        for (const std::string_view other : {"current_date", "current_time", "current_timestamp"})
            if (EqualsNoCase(name, other)) throw Unreadable{name};
    }

    void ParseArguments(Expr& call) {
        call.kind = ExprKind::kCall;
        Expect('(');
        if (TakeIf(')')) return;
        if (TakeIf('*')) {
            call.items = {Make(ExprKind::kStar)};
        } else {
            call.distinct = TakeIf(Word::kDistinct);
            call.items = ParseList(&Parser::ParseExpr);
        }
        Expect(')');
    }

    Expr* ParseDate() {
        const bool isDate = IsWord(Now(), "date") || IsWord(Now(), "timestamp");
        if (!isDate) Stop();
        const std::string_view format = IsWord(Now(), "date") ? "YYYY-MM-DD" : kWholeDateFormat;
        const DateFormat parts = *ReadDateFormat(format);
        Take();
        if (!DateOf(Now().text.substr(1, Now().text.size() - 2), parts)) Stop();
        return WithText(Make(ExprKind::kDate), Take().text);
    }

    /// To a text or a number: how a date is written depends on the server.
    Expr* ParseCast() {
        Take();
        Expect('(');
        Expr* cast = Make(ExprKind::kCast, {ParseExpr()});
        Expect(Word::kAs);
        ColumnDefinition target;
        const Token& begin = Now();
        ParseType(target);
        const Type type = FindTypeName(target.type).type;
        if (type != Type::kText && type != Type::kNumber) throw Unreadable{begin.text};
        cast->text = target.type;
        cast->names = target.sizes;
        Expect(')');
        return cast;
    }

    Expr* ParseCase() {
        Expr* operand = Now().Is(Word::kWhen) ? nullptr : ParseExpr();
        Expr* choice = Make(ExprKind::kCase, {operand});
        do {
            Expect(Word::kWhen);
            choice->items.push_back(ParseExpr());
            Expect(Word::kThen);
            choice->items.push_back(ParseExpr());
        } while (Now().Is(Word::kWhen));
        choice->items.push_back(TakeIf(Word::kElse) ? ParseExpr() : nullptr);
        Expect(Word::kEnd);
        return choice;
    }

    const std::vector<Token>& tokens_;
    Arena& arena_;
    std::size_t at_ = 0;
    int depth_ = 0;
};

}  // namespace

Statement Parse(const std::vector<Token>& tokens, Arena& arena) {
    return Parser(tokens, arena).ParseStatement();
}

}  // namespace kv::dialect
