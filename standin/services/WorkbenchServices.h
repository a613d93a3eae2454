#pragma once

#include "standin/services/Dialogs.h"
#include "standin/services/ErrorReporter.h"
#include "standin/services/MainWindow.h"
#include "standin/services/ModuleService.h"
#include "standin/services/files/DocumentFilesService.h"
#include "standin/services/mail/MailService.h"
#include "standin/services/models/ModelsService.h"
#include "standin/services/pickers/lists/CatalogueSelectionService.h"
#include "standin/services/pickers/lists/KeyedListsService.h"
#include "standin/services/pickers/lists/ListPickerService.h"
#include "standin/services/pickers/multiple/MultiSelectionService.h"
#include "standin/services/pickers/persons/PersonPicker.h"
#include "standin/services/pickers/persons/PersonQueryService.h"
#include "standin/services/selection/SelectionDialogService.h"
#include "standin/services/selection/SelectionTranslatorService.h"
#include "standin/services/selection/codes/LookupGridDialogService.h"
#include "standin/services/selection/codes/TypeAheadService.h"
#include "standin/services/spreadsheets/SpreadsheetService.h"
#include "standin/services/texts/Localizer.h"
#include "standin/services/values/ColumnUpdateService.h"
#include "standin/services/values/ColumnWidthService.h"
#include "standin/services/values/DataAccessService.h"
#include "standin/services/values/DateConverterService.h"
#include "standin/services/values/GridLayoutStoreService.h"
#include "standin/services/values/LookupValidationService.h"
#include "standin/services/values/SettingsService.h"
#include "standin/services/values/SystemClock.h"

#include <memory>

namespace tellurix::standin {

/// All host services of one session of the workbench.
class WorkbenchServices {
public:
    /// @param display where messages and pickers are shown
    /// @param session the session's record; the language in it may change while it lives
    /// @param catalogue shared by all sessions
    /// @param locale how the user reads and types numbers
    /// All of them live as long as the services. A test gives a clock of its own.
    WorkbenchServices(ui::Display& display, const host::TlxVar& session, const TextCatalogue& catalogue,
                      const base::Locale& locale = base::Locale::german(),
                      std::unique_ptr<base::Clock> clock = std::make_unique<SystemClock>());

    host::HostServices& host() { return host_; }
    /// With the module's requests for the start page's list.
    ModuleService& moduleService() { return moduleService_; }
    Localizer& localizer() { return localizer_; }
    Dialogs& dialogs() { return dialogs_; }
    SettingsService& settings() { return settings_; }
    const std::shared_ptr<host::HostMainWindow>& mainWindow() const { return mainWindow_; }

private:
    std::unique_ptr<base::Clock> clock_;
    Dialogs dialogs_;
    ErrorReporter errors_;
    Localizer localizer_;
    DataAccessService dataAccess_;
    ModuleService moduleService_;
    PersonPicker personalPicker_;
    ListPickerService listPicker_;
    LookupValidationService lookupValidation_;
    KeyedListsService keyedLists_;
    PersonQueryService personQuery_;
    DateConverterService dateConverter_;
    SettingsService settings_;
    GridLayoutStoreService gridLayouts_;
    ColumnWidthService columnWidth_;
    ColumnUpdateService columnUpdate_;
    SelectionDialogService selectionDialog_;
    LookupGridDialogService lookupGridDialog_;
    TypeAheadService typeAhead_;
    SelectionTranslatorService selectionTranslator_;
    ModelsService models_;
    CatalogueSelectionService catalogueSelection_;
    MultiSelectionService multiSelection_;
    SpreadsheetService spreadsheets_;
    MailService mail_;
    DocumentFilesService files_;
    std::shared_ptr<host::HostMainWindow> mainWindow_;
    host::HostServices host_;
};

} // namespace tellurix::standin
