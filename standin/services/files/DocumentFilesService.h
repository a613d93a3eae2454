#pragma once

#include "module/host/document_services.h"

namespace tellurix::standin {

/// Copies documents between folders of this machine's file system.
class DocumentFilesService final : public host::DocumentFiles {
public:
    Present find(const std::string& source, const std::string& folder) override;
    void copy(const std::string& source, const std::string& folder) override;
};

} // namespace tellurix::standin
