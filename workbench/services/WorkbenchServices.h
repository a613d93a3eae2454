#pragma once

#include "services/ColumnUpdateService.h"
#include "services/ColumnWidthService.h"
#include "services/DataAccessService.h"
#include "services/DateConverterService.h"
#include "services/ErrorReporter.h"
#include "services/GridLayoutStoreService.h"
#include "services/KeyedListsService.h"
#include "services/ListPickerService.h"
#include "services/Localizer.h"
#include "services/LookupGridDialogService.h"
#include "services/LookupValidationService.h"
#include "services/MainWindow.h"
#include "services/ModuleService.h"
#include "services/PersonPicker.h"
#include "services/PersonQueryService.h"
#include "services/SelectionDialogService.h"
#include "services/SelectionTranslatorService.h"
#include "services/SettingsService.h"
#include "services/SystemClock.h"
#include "services/TypeAheadService.h"

#include <memory>

namespace tellurix::workbench {

/// All host services of one session of the workbench.
class WorkbenchServices {
public:
    /// @param display where messages and pickers are shown
    /// @param session the session's record; the language in it may change while it lives
    /// @param catalogue shared by all sessions
    /// @param locale how the user reads and types numbers
    /// All of them live as long as the services. A test gives a clock of its own.
    WorkbenchServices(ui::Display& display, const host::TlxVar& session, const TextCatalogue& catalogue,
                      const common::Locale& locale = common::Locale::german(),
                      std::unique_ptr<common::Clock> clock = std::make_unique<SystemClock>());

    host::HostServices& host() { return host_; }
    /// With the module's requests for the start page's list.
    ModuleService& moduleService() { return moduleService_; }
    Localizer& localizer() { return localizer_; }
    SettingsService& settings() { return settings_; }
    const std::shared_ptr<host::HostMainWindow>& mainWindow() const { return mainWindow_; }

private:
    std::unique_ptr<common::Clock> clock_;
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
    std::shared_ptr<host::HostMainWindow> mainWindow_;
    host::HostServices host_;
};

} // namespace tellurix::workbench
