#pragma once

#include "module/deductions/LineTable.h"
#include "module/deductions/StoredCalculation.h"
#include "module/host/services.h"
#include "module/parts/meanwhile/ConflictQuestion.h"
#include "module/parts/meanwhile/TakenOver.h"

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tellurix::deductions {

/// The lines on the screen together with those in the database, which others save as well: all lines are
/// written anew, so what a colleague has changed since they were read has to be on the screen before.
///
/// A line that the user has not touched becomes the colleague's. In one that both have changed, field by
/// field; where the colleague's line has another statistic it is another line, and is asked about as a whole.
class SharedLines {
public:
    /// @param model that the screen shows; it is asked about like a field
    /// @param modelName what the model is called
    SharedLines(LineTable& table, host::HostServices& services, const host::TlxVar& session,
                std::string& model, std::function<std::string()> modelName)
        : table_(table),
          services_(services),
          session_(session),
          model_(model),
          modelName_(std::move(modelName)) {}

    /// Shows lines as they were read.
    void show(const StoredLines& stored);
    /// Brings the screen together with what is stored now, and asks where it has to.
    /// @param read reads it
    /// @return false when the user wants to go back: nothing is to be written
    bool settle(const std::function<StoredLines()>& read);
    /// Marks the boxes of what the user has changed, and of what came from somebody else.
    void mark();
    /// What came from somebody else, in a sentence; empty for nothing.
    std::string takenOver() const { return takenOver_.sentence(session_.language); }

private:
    /// Something that both have changed.
    struct InConflict {
        std::optional<std::size_t> line;   ///< nothing for the model
        std::optional<std::size_t> member; ///< nothing for the whole line
        parts::Conflict shown;
    };

    std::vector<InConflict> compare(const StoredLines& now);
    void compareLine(std::size_t line, const host::CalculationLine& now, std::vector<InConflict>& conflicts);
    void compareMembers(std::size_t line, const host::CalculationLine& now,
                        std::vector<InConflict>& conflicts);
    void compareModel(const std::string& now, std::vector<InConflict>& conflicts);
    void takeMember(std::size_t line, std::size_t member, const host::CalculationLine& from);
    void takeLine(std::size_t line, const host::CalculationLine& from);
    void answer(const InConflict& conflict, const StoredLines& now, bool theirs);

    std::string text(std::size_t member, const host::CalculationLine& line) const;
    std::string text(const host::CalculationLine& line) const;
    std::string name(std::size_t line) const;
    std::string name(std::size_t line, std::size_t member) const;
    /// The control that a member stands in; null for the article, which stands in none.
    ui::Control* controlOf(std::size_t line, std::size_t member) const;
    /// @param present the line as the screen has it
    bool changed(std::size_t line, std::size_t member, const host::CalculationLine& present) const;
    bool changed(std::size_t line) const;

    LineTable& table_;
    host::HostServices& services_;
    const host::TlxVar& session_;
    std::string& model_;
    std::function<std::string()> modelName_;
    StoredLines read_;             ///< as they were stored
    host::CalculationLines shown_; ///< what the screen made of them
    std::string shownModel_;
    parts::TakenOver takenOver_;
    /// Of each line, the fields that came from somebody else.
    std::array<std::set<std::size_t>, LineTable::size> taken_;
};

} // namespace tellurix::deductions
