#pragma once

#include <cstdint>
#include <string>

namespace tellurix::standin {

/// A contract that the user wants to see, with what the host adds to every call of the module.
struct ContractToOpen {
    std::int32_t id = 0;
    std::string name;
    std::string type; ///< contract-type code, "R" or "A1" … "A8"
    bool isNew = false;
    std::string caption; ///< what the window's title starts with
    std::int16_t standardClient = 0;
};

/// The ways from the start page into the contract module.
class ContractOpener {
public:
    virtual ~ContractOpener() = default;
    /// Shows the contract editor and returns when it is closed.
    virtual void open(const ContractToOpen& contract) = 0;
    /// Shows the weekly provision reports, or the quantity reports, and returns when they are closed.
    /// @param kind the contract kind that the host works on
    virtual void openProvisionReports(std::int16_t kind) = 0;
    virtual void openQuantityReports(std::int16_t kind) = 0;
};

} // namespace tellurix::standin
