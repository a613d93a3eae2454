#pragma once

#include "module/deductions/CalculationStatements.h"
#include "module/host/CalculationForm.h"
#include "module/host/services.h"

#include <cstddef>
#include <string>

namespace tellurix::deductions {

/// The lines of a calculation and the name of its model, as they are stored.
struct StoredLines {
    host::CalculationLines lines;
    std::string model;
};

/// One calculation in the database, read and written a statement at a time. Lines count from 0.
class StoredCalculation {
public:
    /// @param session of the screen
    StoredCalculation(host::HostServices& services, const host::TlxVar& session)
        : services_(services), session_(session) {}

    /// Begins with another calculation.
    /// @param name its name
    /// @param upperType "V", "V1" … "V8"
    void open(const std::string& name, const std::string& upperType) {
        statements_ = CalculationStatements{name, upperType};
    }

    StoredLines read() const;
    /// A column of its lines that says the same in all of them; empty without lines.
    std::string ReadModelColumn(const std::string& column) const;
    std::string FindSubset(std::size_t line) const;

    void DeleteLines() const;
    void SaveLine(std::size_t line, const host::CalculationLine& values) const;
    void UpdateModelColumn(const std::string& column, const std::string& value) const;
    /// Tries the name of a model, before anything is deleted.
    /// @throws base::StatementError where no statement can carry it
    void requireModel(const std::string& model) const;

private:
    void UpdateLineColumn(const std::string& column, const std::string& value, std::size_t line) const;

    host::HostServices& services_;
    const host::TlxVar& session_;
    CalculationStatements statements_;
};

} // namespace tellurix::deductions
