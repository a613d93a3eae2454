#pragma once

#include "database/embedded/execution/Calculation.h"
#include "database/embedded/execution/Engine.h"

#include <optional>
#include <string>
#include <vector>

namespace tellurix::embedded {

/// A loop that counts on variables and writes what it counts into a table variable, as a batch does that
/// makes a table of days. Its values are worked out without statements and its rows written many at a
/// time.
class CalculatedLoop {
public:
    /// @return nothing for a loop that does anything else
    static std::optional<CalculatedLoop> of(const WhileStatement& loop, const Batch& batch);

    struct End {
        bool reached = false; ///< else the frame is as before the first round that could not be calculated
        bool wrote = false;   ///< whether a row was written
    };
    End run(Engine& engine, Frame& frame);

private:
    /// One statement of the body.
    struct Step {
        int variable = Variables::none; ///< which variable is set, or none for the row
        std::vector<Calculation> values;
    };

    explicit CalculatedLoop(Calculation condition) : condition_(std::move(condition)) {}
    bool add(const Statement& statement, const Batch& batch);
    bool addRow(const InsertStatement& insert, const Batch& batch);
    bool round(Frame& frame, const SessionOptions& options);
    void write(Engine& engine, std::size_t rows);
    std::string insertion(std::size_t rows) const;

    Calculation condition_;
    std::vector<Step> steps_;
    std::string target_; ///< of the rows, in SQLite's SQL, with its columns; empty for no rows
    std::size_t width_ = 0;
    std::vector<std::int64_t> waiting_; ///< rows that have not been written yet
    SqliteStatement many_;
};

} // namespace tellurix::embedded
