#include "com/component/VertragObject.h"

#include "com/automation/Bstr.h"
#include "com/automation/variables.h"
#include "com/component/HostWindow.h"
#include "com/component/dual_call.h"
#include "com/component/host_variant.h"

namespace tellurix::windows {

namespace {

/// The operations by their numbers in the type library.
enum Operation : DISPID { bereitstellung = firstOperation, mengenmeldung, vertrag, vertragType };

/// @throws AutomationError when the host gave no record
std::unique_ptr<HostsRecord> given(::TlxVar* record) {
    if (record == nullptr) throw AutomationError(E_POINTER, "The session record (TlxVar) is missing");
    return std::make_unique<HostsRecord>(record, RecordType::registered());
}

} // namespace

struct VertragObject::RunParameters {
    std::int32_t id;
    std::string name;
    std::string StrVer_Type;
    std::string strThousantSep;
    std::string strDecimalSep;
    std::string rechName;
    host::Variant blnOK;
    host::Boolean16 bolEuroChange;
    ComPtr<IDispatch> F_Main;
    std::int16_t g_intStandardMandanten;
    bool newVertrag;
    std::string strCaption;
    bool enableKLR;
};

void VertragObject::run(std::unique_ptr<HostsRecord> record, RunParameters& parameters,
                        const std::function<void()>& writeBack) {
    const auto mainWindow = std::make_shared<HostWindow>(parameters.F_Main);
    Apartment::Call call(*apartment_, Apartment::Kind::contract, std::move(record), mainWindow->handle());
    call.perform([&](host::TlxVar& session) {
        apartment_->module().Vertrag_Run(
            session, parameters.id, parameters.name, parameters.StrVer_Type, parameters.strThousantSep,
            parameters.strDecimalSep, parameters.rechName, parameters.blnOK, parameters.bolEuroChange,
            parameters.F_Main ? mainWindow : nullptr, parameters.g_intStandardMandanten,
            parameters.newVertrag, parameters.strCaption, parameters.enableKLR, [&] {
                writeBack();
                call.screenIsClosed();
            });
    });
}

void VertragObject::runReport(Apartment::Kind report, std::unique_ptr<HostsRecord> record,
                              std::int16_t modul) {
    Apartment::Call call(*apartment_, report, std::move(record), HostWindow(nullptr).handle());
    call.perform([&](host::TlxVar& session) {
        if (report == Apartment::Kind::provisionReport) {
            apartment_->module().F_Bereitstellung_WVO_Run(session, modul);
        } else {
            apartment_->module().F_VertragMengenmeldung_WVO_Run(session, modul);
        }
    });
}

HRESULT VertragObject::F_Bereitstellung_WVO_Run(::TlxVar* record, short modul) {
    const ComPtr<IDispatch> alive(this);
    return guarded(source(), [&] { runReport(Apartment::Kind::provisionReport, given(record), modul); });
}

HRESULT VertragObject::F_VertragMengenmeldung_WVO_Run(::TlxVar* record, short modul) {
    const ComPtr<IDispatch> alive(this);
    return guarded(source(), [&] { runReport(Apartment::Kind::quantityReport, given(record), modul); });
}

HRESULT VertragObject::Vertrag_Run(::TlxVar* record, LONG id, BSTR name, BSTR StrVer_Type_dll,
                                   BSTR strThousantSep_dll, BSTR strDecimalSep_dll, BSTR rechName_dll,
                                   VARIANT* blnOK_dll, VARIANT_BOOL* bolEuroChange_dll, IDispatch* F_Main_dll,
                                   short g_intStandardMandanten_dll, VARIANT_BOOL newVertrag, BSTR strCaption,
                                   VARIANT_BOOL enableKLR) {
    const ComPtr<IDispatch> alive(this);
    return guarded(source(), [&] {
        if (blnOK_dll == nullptr || bolEuroChange_dll == nullptr)
            throw AutomationError(E_POINTER, "blnOK_dll and bolEuroChange_dll have to be given by reference");
        if (!isAssignable(*blnOK_dll))
            throw AutomationError(DISP_E_TYPEMISMATCH, "The variable of blnOK_dll cannot be written to");
        RunParameters parameters{.id = id,
                                 .name = textOf(name),
                                 .StrVer_Type = textOf(StrVer_Type_dll),
                                 .strThousantSep = textOf(strThousantSep_dll),
                                 .strDecimalSep = textOf(strDecimalSep_dll),
                                 .rechName = textOf(rechName_dll),
                                 .blnOK = hostVariant(*blnOK_dll),
                                 .bolEuroChange = static_cast<host::Boolean16>(*bolEuroChange_dll),
                                 .F_Main = ComPtr<IDispatch>(F_Main_dll),
                                 .g_intStandardMandanten = g_intStandardMandanten_dll,
                                 .newVertrag = newVertrag != VARIANT_FALSE,
                                 .strCaption = textOf(strCaption),
                                 .enableKLR = enableKLR != VARIANT_FALSE};
        run(given(record), parameters, [&] {
            assign(*blnOK_dll, comVariant(parameters.blnOK));
            *bolEuroChange_dll = static_cast<VARIANT_BOOL>(parameters.bolEuroChange);
        });
    });
}

void VertragObject::runByName(const CallArguments& arguments) {
    expectCount(arguments, 14);
    arguments.expectWritable(7);
    arguments.expectWritable(8);
    RunParameters parameters{.id = arguments[1].integer(),
                             .name = arguments[2].text(),
                             .StrVer_Type = arguments[3].text(),
                             .strThousantSep = arguments[4].text(),
                             .strDecimalSep = arguments[5].text(),
                             .rechName = arguments[6].text(),
                             .blnOK = arguments[7].converted(hostVariant),
                             .bolEuroChange = static_cast<host::Boolean16>(arguments[8].as(VT_BOOL).boolVal),
                             .F_Main = arguments[9].object(),
                             .g_intStandardMandanten = arguments[10].as(VT_I2).iVal,
                             .newVertrag = arguments[11].flag(),
                             .strCaption = arguments[12].text(),
                             .enableKLR = arguments[13].flag()};
    run(recordIn(arguments.raw(0), "TlxVar"), parameters, [&] {
        arguments.write(7, comVariant(parameters.blnOK));
        Variant euroChange(false);
        euroChange.boolVal = static_cast<VARIANT_BOOL>(parameters.bolEuroChange);
        arguments.write(8, euroChange);
    });
}

HRESULT VertragObject::GetVertragType(BSTR strVerType, BSTR* result) {
    if (result == nullptr) return E_POINTER;
    return guarded(source(),
                   [&] { *result = Bstr(apartment_->module().GetVertragType(textOf(strVerType))).detach(); });
}

Variant VertragObject::invoke(DISPID number, const CallArguments& arguments) {
    const auto report = [&](Apartment::Kind kind) {
        expectCount(arguments, 2);
        runReport(kind, recordIn(arguments.raw(0), "TlxVar"), arguments[1].as(VT_I2).iVal);
        return Variant();
    };
    switch (number) {
    case bereitstellung:
        return report(Apartment::Kind::provisionReport);
    case mengenmeldung:
        return report(Apartment::Kind::quantityReport);
    case vertrag:
        runByName(arguments);
        return {};
    case vertragType:
        expectCount(arguments, 1);
        return apartment_->module().GetVertragType(arguments[0].text());
    default:
        throwNoSuchOperation();
    }
}

} // namespace tellurix::windows
