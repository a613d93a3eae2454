#include "database/embedded/execution/Batch.h"

#include "database/embedded/syntax/Parser.h"
#include "database/embedded/translation/computed_part.h"
#include "database/embedded/values/Fault.h"

namespace tellurix::embedded {

Batch::Batch(std::string_view text) : text_(text), tableVariables_(arena_.memory()) {
    block_ = Parser(text_, arena_).parseBatch();
    collect(*block_);
    computedStatements_ = computedPart(*block_);
    computedSize_ = text_.size();
    if (computedStatements_ == 0 || computedStatements_ == block_->statements.size()) return;
    const auto* const* const select = std::get_if<SelectStatement*>(&block_->statements[computedStatements_]);
    if (select != nullptr) computedSize_ = (*select)->query->position;
}

bool Batch::setsNoCountFirst() const {
    const auto* const* const set = std::get_if<SetOption*>(&block_->statements.front());
    return set != nullptr && (*set)->option == Option::noCount;
}

bool Batch::use(std::shared_ptr<const Computed> computed) {
    if (computed && computed == computed_) return false;
    computed_ = std::move(computed);
    // What has been compiled names the tables of before.
    compiled_.clear();
    variables_.tables.clear();
    if (computed_) variables_.tables = computed_->tables;
    return true;
}

void Batch::collect(const Block& block) {
    for (const Statement& statement : block.statements)
        collect(statement);
}

/// A variable is known from its declaration on, wherever in the text that stands; a use before it
/// finds no value yet, but the server would refuse it.
void Batch::collect(const Statement& statement) {
    if (auto* const* const variable = std::get_if<DeclareVariable*>(&statement)) {
        addVariable(**variable);
    } else if (auto* const* const table = std::get_if<TableDefinition*>(&statement)) {
        if ((*table)->table.written.starts_with('@')) tableVariables_.push_back(*table);
    } else if (auto* const* const nested = std::get_if<Block*>(&statement)) {
        collect(**nested);
    } else if (auto* const* const loop = std::get_if<WhileStatement*>(&statement)) {
        collect((*loop)->body);
    } else if (auto* const* const choice = std::get_if<IfStatement*>(&statement)) {
        collect((*choice)->then);
        if ((*choice)->hasElse) collect((*choice)->otherwise);
    }
}

void Batch::addVariable(const DeclareVariable& variable) {
    const auto number = static_cast<int>(variables_.scalars.size());
    if (!variables_.scalarByName.emplace(std::string(variable.name.folded), number).second)
        failSyntax("The variable " + std::string(variable.name.written) + " is declared twice",
                   variable.name.position);
    variables_.scalars.push_back({std::string(variable.name.written), variable.type});
}

} // namespace tellurix::embedded
