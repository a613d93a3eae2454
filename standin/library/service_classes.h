#pragma once

#include "com/automation/DispatchObject.h"

namespace tellurix::windows {

/// What a service class offers. The members stand in the order of the type library, and so have its
/// numbers.
struct ServiceClass {
    const char* source; ///< the class, for errors: "Tellurix_Loc.HostLocalizer"
    DispatchTable members;
};

// Values: value_services.cpp
const ServiceClass& hostDataAccess();
const ServiceClass& hostModuleService();
const ServiceClass& personQueryBuilder();
const ServiceClass& dateConverter();
const ServiceClass& namedSettings();
const ServiceClass& columnWidth();
const ServiceClass& columnUpdate();
const ServiceClass& selectionTranslator();

// Questions to the user: dialog_services.cpp
const ServiceClass& hostPersonalPicker();
const ServiceClass& listPicker();
const ServiceClass& keyedLists();
const ServiceClass& selectionDialog();
const ServiceClass& catalogueSelection();
const ServiceClass& lookupGridDialog();
const ServiceClass& multiSelectionList();
const ServiceClass& hostErrorReport();

// Documents: document_services.cpp
const ServiceClass& spreadsheetExport();

// Work on controls and forms of the caller: control_services.cpp
const ServiceClass& hostLocalizer();
const ServiceClass& lookupValidation();
const ServiceClass& gridLayoutStore();
const ServiceClass& typeAhead();
const ServiceClass& modelService();

} // namespace tellurix::windows
