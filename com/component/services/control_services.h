#pragma once

#include "com/component/services/HostClass.h"
#include "module/host/services.h"

namespace tellurix::windows {

/// The host's services that work on controls and forms, each by its class of the host's library. The
/// library gets them as objects for the time of the call.

class LateLocalizer final : public host::HostLocalizer {
public:
    void localize(const host::TlxVar& session, ui::Form& form) override;
    std::string text(int number, const host::TlxVar& session) override;

private:
    HostClass object_{"HostLocalizer"};
};

class LateLookupValidation final : public host::LookupValidation {
public:
    bool resolve(const host::TlxVar& session, std::int32_t option, const std::string& query, ui::TextBox& box,
                 ui::TextBox* shown, const std::string& displayColumn, ui::TextBox* third,
                 const std::string& text) override;

private:
    HostClass object_{"LookupValidation"};
};

class LateGridLayoutStore final : public host::GridLayoutStore {
public:
    void save(const host::TlxVar& session, const ui::Grid& grid, const std::string& key) override;
    void restore(const host::TlxVar& session, ui::Grid& grid, const std::string& key) override;

private:
    HostClass object_{"GridLayoutStore"};
};

class LateModelService final : public host::ModelService {
public:
    void fill(const host::TlxVar& session, ui::ComboBox& list, const std::string& category) override;
    void copy(const host::TlxVar& session, const std::string& category, std::int32_t model,
              host::CalculationForm& form) override;
    void manage(const host::TlxVar& session, const std::string& category, host::CalculationForm& form,
                ui::ComboBox& list) override;

private:
    HostClass object_{"ModelService"};
};

class LateTypeAhead final : public host::TypeAhead {
public:
    void bind(const host::TlxVar& session, ui::TextBox& box, const std::string& query,
              const std::string& displayColumn) override;

private:
    HostClass object_{"TypeAhead"};
};

} // namespace tellurix::windows
