#pragma once

#include "database/embedded/execution/Engine.h"
#include "module/base/database.h"

#include <memory>

namespace tellurix::embedded {

/// Runs the statements of one batch in order. Each writes for itself; what was done before one
/// that fails stays done, as on the server.
class Interpreter {
public:
    Interpreter(std::shared_ptr<Engine> engine, std::shared_ptr<Batch> batch);

    /// The rows of the batch's last query, and how many rows its last write changed.
    base::ExecuteResult run();

private:
    bool restore();
    void compute();
    void use(std::shared_ptr<const Computed> computed);
    void run(const Statement& statement);
    void run(const SelectStatement& select);
    void assign(const SelectStatement& select);
    void run(const InsertStatement& insert);
    void run(const UpdateStatement& update);
    void run(const DeleteStatement& deletion);
    void run(const TableDefinition& table);
    void run(const CreateIndexStatement& index);
    void run(const AddColumnsStatement& alter);
    void run(const DropTableStatement& drop);
    void run(const DeclareVariable& declaration);
    void run(const SetVariable& set);
    void run(const SetOption& set);
    void run(const Block& block);
    void run(const IfStatement& choice);
    void run(const WhileStatement& loop);

    void write(const Task& task);
    void assign(const Name& variable, Expression& value);
    bool holds(Expression& condition);
    void setIdentityInsert(const SetOption& set);
    void requireIdentityRule(const InsertStatement& insert, const Translation& translation);

    std::shared_ptr<Engine> engine_;
    std::shared_ptr<Batch> batch_;
    Frame frame_;
    base::ExecuteResult result_;
};

} // namespace tellurix::embedded
