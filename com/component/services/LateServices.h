#pragma once

#include "com/component/WindowsClock.h"
#include "com/component/services/ErrorReport.h"
#include "com/component/services/control_services.h"
#include "com/component/services/value_services.h"
#include "com/component/services/dialog_services.h"

namespace tellurix::windows {

/// All services of the host's library, for the screens of one thread.
class LateServices {
public:
    /// @param display outlives the services
    explicit LateServices(ui::Display& display);
    LateServices(const LateServices&) = delete;
    LateServices& operator=(const LateServices&) = delete;

    host::HostServices& host() { return host_; }
    ErrorReport& errors() { return errors_; }

private:
    WindowsClock clock_;
    ErrorReport errors_;
    LateDataAccess dataAccess_;
    LateModuleService moduleService_;
    LateLocalizer localizer_;
    LatePersonalPicker personalPicker_;
    LateListPicker listPicker_;
    LateLookupValidation lookupValidation_;
    LateKeyedLists keyedLists_;
    LatePersonQuery personQuery_;
    LateDateConverter dateConverter_;
    LateSettings settings_;
    LateGridLayoutStore gridLayouts_;
    LateColumnWidth columnWidth_;
    LateColumnUpdate columnUpdate_;
    LateSelectionDialog selectionDialog_;
    LateLookupGridDialog lookupGridDialog_;
    LateTypeAhead typeAhead_;
    LateSelectionTranslator selectionTranslator_;
    LateModelService models_;
    LateCatalogueSelection catalogueSelection_;
    host::HostServices host_;
};

} // namespace tellurix::windows
