#include "com/component/services/LateServices.h"

namespace tellurix::windows {

LateServices::LateServices(ui::Display& display)
    : errors_(display),
      host_{.display = display,
            .errors = errors_,
            .clock = clock_,
            .locale = base::Locale::german(),
            .dataAccess = *dataAccess_,
            .moduleService = *moduleService_,
            .localizer = *localizer_,
            .personalPicker = *personalPicker_,
            .listPicker = *listPicker_,
            .lookupValidation = *lookupValidation_,
            .keyedLists = *keyedLists_,
            .personQuery = *personQuery_,
            .dateConverter = *dateConverter_,
            .settings = *settings_,
            .gridLayouts = *gridLayouts_,
            .columnWidth = *columnWidth_,
            .columnUpdate = *columnUpdate_,
            .selectionDialog = *selectionDialog_,
            .lookupGridDialog = *lookupGridDialog_,
            .typeAhead = *typeAhead_,
            .selectionTranslator = *selectionTranslator_,
            .models = *models_,
            .catalogue = *catalogueSelection_,
            .multiSelection = *multiSelection_,
            .spreadsheets = *spreadsheets_,
            .mail = *mail_,
            .files = *files_} {}

} // namespace tellurix::windows
