#include "database/embedded/execution/Interpreter.h"

#include "database/embedded/execution/CalculatedLoop.h"
#include "database/embedded/execution/EmbeddedRecordset.h"
#include "database/embedded/translation/definitions.h"
#include "database/embedded/values/Fault.h"

namespace tellurix::embedded {

Interpreter::Interpreter(std::shared_ptr<Engine> engine, std::shared_ptr<Batch> batch)
    : engine_(std::move(engine)), batch_(std::move(batch)), frame_(batch_->variables().scalars.size()) {}

base::ExecuteResult Interpreter::run() {
    const List<Statement>& statements = batch_->block().statements;
    if (batch_->computedStatements() == 0)
        engine_->prepareTableVariables(*batch_);
    else if (!restore())
        compute();
    for (std::size_t index = batch_->computedStatements(); index < statements.size(); ++index)
        run(statements[index]);
    return std::move(result_);
}

/// Takes over what an earlier run of the same text has computed. Its table variables are still filled.
bool Interpreter::restore() {
    auto computed = engine_->computed(*batch_);
    if (!computed) return false;
    engine_->session().options = computed->after;
    frame_ = computed->frame;
    result_.rowsAffected = computed->rowsAffected;
    use(std::move(computed));
    return true;
}

void Interpreter::use(std::shared_ptr<const Computed> computed) {
    engine_->readAllOpenRows();
    if (batch_->use(std::move(computed))) engine_->indexTableVariables(*batch_);
}

void Interpreter::compute() {
    use(nullptr);
    engine_->prepareTableVariables(*batch_);
    const SessionOptions before = engine_->session().options;
    {
        // Nothing here touches the file, so that nobody waits for this; one end for all statements is
        // quicker.
        SqliteTransaction together(engine_->connection(), SqliteTransaction::Kind::variable);
        for (std::size_t index = 0; index < batch_->computedStatements(); ++index)
            run(batch_->block().statements[index]);
        together.commit();
    }
    auto computed = std::make_shared<const Computed>(Computed{
        before, engine_->session().options, frame_, result_.rowsAffected, batch_->variables().tables});
    engine_->keep(*batch_, computed);
    use(std::move(computed));
}

void Interpreter::run(const Statement& statement) {
    std::visit([&](auto* node) { run(*node); }, statement);
}

void Interpreter::run(const Block& block) {
    for (const Statement& statement : block.statements)
        run(statement);
}

void Interpreter::run(const SelectStatement& select) {
    if (select.query->assigns) return assign(select);
    Task task{&select, [&select](Translator& translator) { return translator.query(select); }};
    engine_->compile(*batch_, task);
    result_.rows = std::make_unique<EmbeddedRecordset>(engine_, batch_, std::move(task), frame_);
}

/// Where there are several rows, the last one's values stay; where there is none, all stays as it is.
void Interpreter::assign(const SelectStatement& select) {
    const SelectBranch& branch = *select.query->branches.front();
    const bool oneRow = branch.from.empty() && branch.where == nullptr && branch.having == nullptr &&
                        branch.top == nullptr && !branch.aggregates;
    if (oneRow) {
        for (const SelectItem& item : branch.items)
            assign(item.variable, *item.expression);
        return;
    }
    const Task task{&select, [&select](Translator& translator) { return translator.assignments(select); }};
    Running running = engine_->start(*batch_, task, frame_);
    if (!running.statement) return;
    Frame found = frame_;
    do
        for (std::size_t index = 0; index < branch.items.size(); ++index) {
            const int number = batch_->variables().require(branch.items[index].variable);
            found[static_cast<std::size_t>(number)] = cellAt(running.statement, static_cast<int>(index));
        }
    while (running.statement.step());
    engine_->giveBack(std::move(running));
    frame_ = std::move(found);
}

void Interpreter::write(const Task& task) {
    const std::int64_t changes = engine_->write(*batch_, task, frame_);
    result_.rowsAffected = engine_->session().options.noCount ? -1 : changes;
}

void Interpreter::run(const InsertStatement& insert) {
    const Task task{&insert, [&insert](Translator& translator) { return translator.insert(insert); }};
    const Compiled& compiled = engine_->compile(*batch_, task);
    if (!compiled.translation.identityTable.empty()) requireIdentityRule(insert, compiled.translation);
    write(task);
}

void Interpreter::requireIdentityRule(const InsertStatement& insert, const Translation& translation) {
    const bool on = engine_->session().identityInsert == translation.identityTable;
    if (on == translation.givesIdentity) return;
    const std::string table(insert.table.written);
    throw Fault(base::DatabaseErrorCategory::constraint,
                on ? "IDENTITY_INSERT is ON for " + table + ", so the key has to be given"
                   : "The key of " + table + " can only be given while IDENTITY_INSERT is ON for it",
                insert.table.position);
}

void Interpreter::run(const UpdateStatement& update) {
    write({&update, [&update](Translator& translator) { return translator.update(update); }});
}

void Interpreter::run(const DeleteStatement& deletion) {
    write({&deletion, [&deletion](Translator& translator) { return translator.remove(deletion); }});
}

void Interpreter::run(const TableDefinition& table) {
    if (table.table.written.starts_with('@')) return; // made before the batch began
    engine_->prepareToWrite();
    engine_->refreshCatalogue();
    createTable(engine_->connection(), engine_->catalogue(), table);
    engine_->refreshCatalogue();
}

void Interpreter::run(const CreateIndexStatement& index) {
    engine_->prepareToWrite();
    engine_->refreshCatalogue();
    createIndex(engine_->connection(), engine_->catalogue(), index);
    engine_->refreshCatalogue();
}

void Interpreter::run(const AddColumnsStatement& alter) {
    engine_->prepareToWrite();
    engine_->refreshCatalogue();
    addColumns(engine_->connection(), engine_->catalogue(), alter);
    engine_->refreshCatalogue();
}

void Interpreter::run(const DropTableStatement& drop) {
    engine_->prepareToWrite();
    engine_->refreshCatalogue();
    dropTable(engine_->connection(), engine_->catalogue(), drop);
    engine_->refreshCatalogue();
}

void Interpreter::run(const DeclareVariable& declaration) {
    if (declaration.value != nullptr) assign(declaration.name, *declaration.value);
}

void Interpreter::run(const SetVariable& set) {
    assign(set.name, *set.value);
}

void Interpreter::assign(const Name& variable, Expression& value) {
    const auto index = static_cast<std::size_t>(batch_->variables().require(variable));
    const Type& type = batch_->variables().scalars[index].type;
    frame_[index] = engine_->valueOf(
        *batch_, {&value, [&value, &type](Translator& translator) { return translator.value(value, type); }},
        frame_);
}

bool Interpreter::holds(Expression& condition) {
    const Cell cell = engine_->valueOf(
        *batch_,
        {&condition, [&condition](Translator& translator) { return translator.condition(condition); }},
        frame_);
    const auto* const truth = std::get_if<std::int64_t>(&cell);
    return truth != nullptr && *truth != 0;
}

void Interpreter::run(const IfStatement& choice) {
    if (holds(*choice.condition))
        run(choice.then);
    else if (choice.hasElse)
        run(choice.otherwise);
}

void Interpreter::run(const WhileStatement& loop) {
    if (auto calculated = CalculatedLoop::of(loop, *batch_)) {
        const CalculatedLoop::End end = calculated->run(*engine_, frame_);
        if (end.wrote) result_.rowsAffected = engine_->session().options.noCount ? -1 : 1;
        if (end.reached) return;
    }
    while (holds(*loop.condition))
        run(loop.body);
}

void Interpreter::run(const SetOption& set) {
    SqlSession& session = engine_->session();
    switch (set.option) {
    case Option::noCount:
        session.options.noCount = set.on;
        break;
    case Option::dateFirst:
        session.options.dateFirst = set.number;
        break;
    case Option::dateFormat:
        if (set.name.folded == "dmy")
            session.options.dateOrder = DateOrder::dayMonthYear;
        else if (set.name.folded == "mdy")
            session.options.dateOrder = DateOrder::monthDayYear;
        else if (set.name.folded == "ymd")
            session.options.dateOrder = DateOrder::yearMonthDay;
        else
            failSyntax("The date format " + std::string(set.name.written) + " is not supported",
                       set.name.position);
        break;
    case Option::identityInsert:
        setIdentityInsert(set);
        break;
    }
}

void Interpreter::setIdentityInsert(const SetOption& set) {
    engine_->refreshCatalogue();
    const Table* const table = engine_->catalogue().find(set.name.folded);
    if (table == nullptr)
        failUnknownName("There is no table " + std::string(set.name.written), set.name.position);
    std::string& current = engine_->session().identityInsert;
    if (!set.on) {
        if (current == set.name.folded) current.clear();
        return;
    }
    if (!current.empty() && current != set.name.folded)
        throw Fault(base::DatabaseErrorCategory::other,
                    "IDENTITY_INSERT is already ON for the table " + current, set.name.position);
    current = set.name.folded;
}

} // namespace tellurix::embedded
