#pragma once

#include "module/host/services.h"

namespace tellurix::standin {

/// Completes the entry behind the last comma while the user types at the end of a box. What was
/// completed is selected: typing on replaces it; a comma and leaving the box take it.
///
/// Only a typed character completes, never one that was taken away. An entry that is a code as it
/// stands is not made longer, even when other codes start with it. A code gets its own capitals;
/// nothing else that was typed is changed. The rows are read once, when the
/// first character after binding is typed. Handlers that the box already has go on working.
class TypeAheadService final : public host::TypeAhead {
public:
    void bind(const host::TlxVar& session, ui::TextBox& box, const std::string& query,
              const std::string& displayColumn) override;
};

} // namespace tellurix::standin
