#pragma once

#include "module/base/Clock.h"
#include "module/base/Locale.h"
#include "module/host/control_services.h"
#include "module/host/dialog_services.h"
#include "module/host/document_services.h"
#include "module/host/value_services.h"
#include "module/ui/Display.h"

namespace tellurix::host {

/// The services of the host's companion library, as the screens use them: a small port each, by theme in
/// a header of its own. The component and the stand-in library have their halves of a theme in files of
/// the same name. Each screen takes the services by reference. An exception from a service is treated
/// like a failing statement.

/// What the screens are given: the display, the clock, the user's formats and the host's services.
/// Whoever builds it keeps it alive as long as any screen of the thread.
struct HostServices {
    ui::Display& display;
    ui::ErrorHandling& errors;
    const base::Clock& clock;
    base::Locale locale;
    HostDataAccess& dataAccess;
    HostModuleService& moduleService;
    HostLocalizer& localizer;
    HostPersonalPicker& personalPicker;
    ListPicker& listPicker;
    LookupValidation& lookupValidation;
    KeyedLists& keyedLists;
    PersonQueryBuilder& personQuery;
    DateConverter& dateConverter;
    NamedSettings& settings;
    GridLayoutStore& gridLayouts;
    ColumnWidth& columnWidth;
    ColumnUpdate& columnUpdate;
    SelectionDialog& selectionDialog;
    LookupGridDialog& lookupGridDialog;
    TypeAhead& typeAhead;
    SelectionTranslator& selectionTranslator;
    ModelService& models;
    CatalogueSelection& catalogue;
    MultiSelectionList& multiSelection;
    SpreadsheetExport& spreadsheets;
    MailSession& mail;
    DocumentFiles& files;
};

} // namespace tellurix::host
