#include "standin/services/WorkbenchServices.h"

namespace tellurix::standin {

WorkbenchServices::WorkbenchServices(ui::Display& display, const host::TlxVar& session,
                                     const TextCatalogue& catalogue, const base::Locale& locale,
                                     std::unique_ptr<base::Clock> clock)
    : clock_(std::move(clock)),
      errors_(display, catalogue, session),
      localizer_(catalogue),
      moduleService_(*clock_),
      personalPicker_(display, localizer_),
      listPicker_(display, *clock_, localizer_, locale),
      lookupValidation_(display, localizer_),
      keyedLists_(display, localizer_),
      personQuery_(locale),
      selectionDialog_(display, localizer_, locale),
      lookupGridDialog_(display, localizer_, locale),
      mainWindow_(std::make_shared<MainWindow>(settings_, session)),
      host_{.display = display,
            .errors = errors_,
            .clock = *clock_,
            .locale = locale,
            .dataAccess = dataAccess_,
            .moduleService = moduleService_,
            .localizer = localizer_,
            .personalPicker = personalPicker_,
            .listPicker = listPicker_,
            .lookupValidation = lookupValidation_,
            .keyedLists = keyedLists_,
            .personQuery = personQuery_,
            .dateConverter = dateConverter_,
            .settings = settings_,
            .gridLayouts = gridLayouts_,
            .columnWidth = columnWidth_,
            .columnUpdate = columnUpdate_,
            .selectionDialog = selectionDialog_,
            .lookupGridDialog = lookupGridDialog_,
            .typeAhead = typeAhead_,
            .selectionTranslator = selectionTranslator_} {}

} // namespace tellurix::standin
