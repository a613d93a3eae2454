#pragma once

#include "database/embedded/syntax/ast.h"
#include "database/embedded/translation/Catalogue.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tellurix::embedded {

/// A column that a query answers with.
struct OutputColumn {
    Name name; ///< empty when it has none
    Type type;
    bool collated = false;
};

/// A table or derived table that a FROM clause names.
struct Source {
    int id = 0;              ///< unique within one translation
    std::string sqlAlias;    ///< unique too, so that no name of the statement can clash
    std::string_view folded; ///< the name by which the statement's columns are qualified
    std::string_view written;
    bool optional = false; ///< the right side of a LEFT JOIN
    const Table* table = nullptr;
    std::vector<OutputColumn> derived; ///< when there is no table

    std::size_t columnCount() const { return table != nullptr ? table->columns().size() : derived.size(); }
    /// @return Table::noColumn when there is none of that name
    int findColumn(std::string_view foldedColumn) const;
    std::string_view columnName(std::size_t index) const;
    Type columnType(std::size_t index) const;
    /// The column as SQLite's SQL names it.
    std::string columnSql(std::size_t index) const;
    bool isCollated(std::size_t index) const;
};

/// The names that one SELECT, UPDATE or DELETE can use, and those of the statements around it.
///
/// In a grouped query it also keeps watch that no column stands outside the aggregates and the
/// GROUP BY list, since SQLite would then quietly take the value of any row.
class Scope {
public:
    struct Place {
        Scope* scope;
        const Source* source;
        int column;
    };

    explicit Scope(Scope* outer) : outer_(outer) {}

    Scope* outer() const { return outer_; }
    void add(Source source) { sources_.push_back(std::move(source)); }
    const std::vector<Source>& sources() const { return sources_; }
    const Source* findSource(std::string_view folded) const;

    /// Looks a column up here, then further out.
    /// @throws Fault (unknownName) when it is nowhere or in two places
    Place find(const Expression& column);

    /// From now on columns have to be aggregated or among `groupBy`.
    void startGrouping(const List<Expression*>& groupBy);
    bool aggregatesAllowed() const { return aggregatesAllowed_ && aggregateDepth_ == 0; }
    void allowAggregates() { aggregatesAllowed_ = true; }
    void enterAggregate() { ++aggregateDepth_; }
    void leaveAggregate() { --aggregateDepth_; }
    /// Notes a use of a column of this scope.
    void use(const Expression& column);
    /// How many columns have been used outside aggregates and groups so far.
    std::size_t looseColumns() const { return loose_.size(); }
    /// Tells that an expression has been translated in whose place `before` columns were loose.
    void finish(const Expression& expression, std::size_t before);
    /// @throws Fault (syntax) when a loose column is left
    void requireGrouped() const;

private:
    bool isGroup(const Expression& expression) const;

    Scope* outer_;
    std::vector<Source> sources_;
    bool aggregatesAllowed_ = false;
    int aggregateDepth_ = 0;
    const List<Expression*>* groupBy_ = nullptr;
    std::vector<const Expression*> loose_;
};

/// Lets a pointer point to a scope for as long as this object lives.
class EnteredScope {
public:
    EnteredScope(Scope*& current, Scope* entered)
        : current_(current), before_(std::exchange(current, entered)) {}
    ~EnteredScope() { current_ = before_; }
    EnteredScope(const EnteredScope&) = delete;
    EnteredScope& operator=(const EnteredScope&) = delete;

private:
    Scope*& current_;
    Scope* before_;
};

} // namespace tellurix::embedded
