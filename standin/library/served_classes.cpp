#include "com/server/ServedClass.h"
#include "database/embedded/Database.h"
#include "standin/ado_objects/embedded_connection.h"
#include "standin/home/database_file.h"
#include "standin/home/schema_step.h"
#include "standin/library/ServiceObject.h"

#include <Tellurix_Loc.h>

#include <array>

namespace tellurix::windows {

namespace {

template <typename Interface, const ServiceClass& (*served)()>
ComPtr<IUnknown> service() {
    return ComPtr<IUnknown>::adopt(new ServiceObject(__uuidof(Interface), served()));
}

ComPtr<IUnknown> embeddedConnection() {
    static const standin::SystemClock clock;
    const auto makeSample = [](const std::filesystem::path& file) {
        standin::createWhenMissing(file, standin::DatabaseContents::sample, clock);
        standin::addWhatIsMissing(*embedded::Database{file, clock}.connect());
    };
    return ComPtr<IUnknown>(
        ado::createEmbeddedConnection(clock, makeSample, __uuidof(_EmbeddedConnection)).get());
}

} // namespace

std::span<const ServedClass> servedClasses() {
    static const std::array classes{
        ServedClass{__uuidof(HostDataAccess), service<_HostDataAccess, hostDataAccess>},
        ServedClass{__uuidof(HostModuleService), service<_HostModuleService, hostModuleService>},
        ServedClass{__uuidof(HostLocalizer), service<_HostLocalizer, hostLocalizer>},
        ServedClass{__uuidof(HostPersonalPicker), service<_HostPersonalPicker, hostPersonalPicker>},
        ServedClass{__uuidof(ListPicker), service<_ListPicker, listPicker>},
        ServedClass{__uuidof(KeyedLists), service<_KeyedLists, keyedLists>},
        ServedClass{__uuidof(LookupValidation), service<_LookupValidation, lookupValidation>},
        ServedClass{__uuidof(PersonQueryBuilder), service<_PersonQueryBuilder, personQueryBuilder>},
        ServedClass{__uuidof(DateConverter), service<_DateConverter, dateConverter>},
        ServedClass{__uuidof(NamedSettings), service<_NamedSettings, namedSettings>},
        ServedClass{__uuidof(GridLayoutStore), service<_GridLayoutStore, gridLayoutStore>},
        ServedClass{__uuidof(ColumnWidth), service<_ColumnWidth, columnWidth>},
        ServedClass{__uuidof(ColumnUpdate), service<_ColumnUpdate, columnUpdate>},
        ServedClass{__uuidof(SelectionDialog), service<_SelectionDialog, selectionDialog>},
        ServedClass{__uuidof(LookupGridDialog), service<_LookupGridDialog, lookupGridDialog>},
        ServedClass{__uuidof(TypeAhead), service<_TypeAhead, typeAhead>},
        ServedClass{__uuidof(SelectionTranslator), service<_SelectionTranslator, selectionTranslator>},
        ServedClass{__uuidof(ModelService), service<_ModelService, modelService>},
        ServedClass{__uuidof(CatalogueSelection), service<_CatalogueSelection, catalogueSelection>},
        ServedClass{__uuidof(MultiSelectionList), service<_MultiSelectionList, multiSelectionList>},
        ServedClass{__uuidof(SpreadsheetExport), service<_SpreadsheetExport, spreadsheetExport>},
        ServedClass{__uuidof(HostErrorReport), service<_HostErrorReport, hostErrorReport>},
        ServedClass{__uuidof(EmbeddedConnection), embeddedConnection},
    };
    return classes;
}

} // namespace tellurix::windows
