#pragma once

#include "module/base/database.h"
#include "module/host/CalculationForm.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tellurix::standin {

/// The named models of one category, in the tables WORKBENCH_MODEL and WORKBENCH_MODEL_LINE.
class ModelStore {
public:
    struct Model {
        std::int32_t id = 0;
        std::string name;
    };

    /// @param category "ABSCHLAG", "ABSCHLAG1" …; with "_A" behind it, it means the same models
    ModelStore(base::Connection& connection, std::string category);

    /// In the order of their names.
    std::vector<Model> models();
    /// The model of that name, in any case of its letters.
    std::optional<std::int32_t> find(const std::string& name);
    host::CalculationLines lines(std::int32_t model);
    /// Keeps the lines that are not empty under a name, in place of a model that has it.
    /// @return the model
    std::int32_t save(const std::string& name, const host::CalculationLines& lines);
    void rename(std::int32_t model, const std::string& name);
    void remove(std::int32_t model);

private:
    void removeLines(std::int32_t model);
    void insertLine(std::int32_t model, std::size_t number, const host::CalculationLine& line);

    base::Connection& connection_;
    std::string category_;
};

} // namespace tellurix::standin
