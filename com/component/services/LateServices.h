#pragma once

#include "com/component/WindowsClock.h"
#include "com/component/services/ErrorReport.h"
#include "com/component/services/control_services.h"
#include "com/component/services/dialog_services.h"
#include "com/component/services/document_services.h"
#include "com/component/services/value_services.h"
#include "com/component/system/system_services.h"

namespace tellurix::windows {

/// All services of the host's library, and those of Windows, for the screens of one thread.
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
    std::unique_ptr<host::HostDataAccess> dataAccess_ = lateDataAccess();
    std::unique_ptr<host::HostModuleService> moduleService_ = lateModuleService();
    std::unique_ptr<host::HostLocalizer> localizer_ = lateLocalizer();
    std::unique_ptr<host::HostPersonalPicker> personalPicker_ = latePersonalPicker();
    std::unique_ptr<host::ListPicker> listPicker_ = lateListPicker();
    std::unique_ptr<host::LookupValidation> lookupValidation_ = lateLookupValidation();
    std::unique_ptr<host::KeyedLists> keyedLists_ = lateKeyedLists();
    std::unique_ptr<host::PersonQueryBuilder> personQuery_ = latePersonQuery();
    std::unique_ptr<host::DateConverter> dateConverter_ = lateDateConverter();
    std::unique_ptr<host::NamedSettings> settings_ = lateSettings();
    std::unique_ptr<host::GridLayoutStore> gridLayouts_ = lateGridLayoutStore();
    std::unique_ptr<host::ColumnWidth> columnWidth_ = lateColumnWidth();
    std::unique_ptr<host::ColumnUpdate> columnUpdate_ = lateColumnUpdate();
    std::unique_ptr<host::SelectionDialog> selectionDialog_ = lateSelectionDialog();
    std::unique_ptr<host::LookupGridDialog> lookupGridDialog_ = lateLookupGridDialog();
    std::unique_ptr<host::TypeAhead> typeAhead_ = lateTypeAhead();
    std::unique_ptr<host::SelectionTranslator> selectionTranslator_ = lateSelectionTranslator();
    std::unique_ptr<host::ModelService> models_ = lateModelService();
    std::unique_ptr<host::CatalogueSelection> catalogueSelection_ = lateCatalogueSelection();
    std::unique_ptr<host::MultiSelectionList> multiSelection_ = lateMultiSelection();
    std::unique_ptr<host::SpreadsheetExport> spreadsheets_ = lateSpreadsheets();
    std::unique_ptr<host::MailSession> mail_ = systemMail(*settings_);
    std::unique_ptr<host::DocumentFiles> files_ = systemFiles();
    host::HostServices host_;
};

} // namespace tellurix::windows
