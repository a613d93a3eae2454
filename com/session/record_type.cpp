// The ids of the type library are to be defined here.
#include <initguid.h>

#include "com/session/record_type.h"

#include "com/automation/AutomationError.h"
#include "com/automation/Bstr.h"

#include <Tellurix_Loc.h>

#include <algorithm>
#include <array>
#include <cwchar>
#include <string>
#include <vector>

namespace tellurix::windows {

namespace {

/// Of TlxVar in Tellurix_Loc.idl; the compiled header has the ids of interfaces and classes only.
constexpr GUID recordId{0x1e9c9e6e, 0x18ea, 0x490b, {0xa9, 0x5e, 0x98, 0xf0, 0x15, 0x52, 0x6e, 0x24}};

constexpr auto recordName = L"TlxVar";
/// A class that every library of a host has: by it the library is found.
constexpr auto someClass = L"Tellurix_Loc.HostDataAccess";

std::wstring writtenAs(REFGUID id) {
    std::array<wchar_t, 40> text{};
    StringFromGUID2(id, text.data(), static_cast<int>(text.size()));
    return text.data();
}

/// The default value of a key of the registered classes, empty when there is none.
std::wstring registeredValue(const std::wstring& key) {
    std::array<wchar_t, 200> text{};
    auto bytes = static_cast<DWORD>(sizeof text);
    if (RegGetValueW(HKEY_CLASSES_ROOT, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, text.data(), &bytes) !=
        ERROR_SUCCESS)
        return {};
    return text.data();
}

struct Version {
    WORD major = 0;
    WORD minor = 0;

    auto operator<=>(const Version&) const = default;
};

/// The latest version of a type library; its versions are keys in hexadecimal digits, "2.a".
Version latestVersion(const std::wstring& library) {
    Version latest;
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CLASSES_ROOT, (L"TypeLib\\" + library).c_str(), 0, KEY_READ, &key) !=
        ERROR_SUCCESS)
        return latest;
    std::array<wchar_t, 40> name{};
    for (DWORD i = 0, size = name.size();
         RegEnumKeyExW(key, i, name.data(), &size, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
         ++i, size = name.size()) {
        unsigned major = 0;
        unsigned minor = 0;
        if (std::swscanf(name.data(), L"%x.%x", &major, &minor) == 2)
            latest = std::max(latest, Version{static_cast<WORD>(major), static_cast<WORD>(minor)});
    }
    RegCloseKey(key);
    return latest;
}

ComPtr<IRecordInfo> recordOf(ITypeLib& library) {
    ComPtr<IRecordInfo> description;
    for (UINT i = 0, count = library.GetTypeInfoCount(); i < count; ++i) {
        TYPEKIND kind{};
        Bstr name;
        ComPtr<ITypeInfo> type;
        if (FAILED(library.GetTypeInfoType(i, &kind)) || kind != TKIND_RECORD ||
            FAILED(library.GetDocumentation(static_cast<INT>(i), name.put(), nullptr, nullptr, nullptr)) ||
            std::wcscmp(name.get(), recordName) != 0)
            continue;
        check(library.GetTypeInfo(i, type.put()), "Looking for the session record of Tellurix_Loc");
        check(GetRecordInfoFromTypeInfo(type.get(), description.put()),
              "Looking for the session record of Tellurix_Loc");
        break;
    }
    return description;
}

::TlxVar& own(void* record) {
    return *static_cast<::TlxVar*>(record);
}

BSTR copyOf(BSTR text) {
    if (text == nullptr) return nullptr;
    const BSTR copy = SysAllocStringByteLen(reinterpret_cast<const char*>(text), SysStringByteLen(text));
    if (copy == nullptr) throw std::bad_alloc();
    return copy;
}

constexpr std::array ownTexts{&::TlxVar::HomeCurrency, &::TlxVar::Site, &::TlxVar::User, &::TlxVar::Language};

void clearOwn(::TlxVar& record) {
    if (record.Connection != nullptr) record.Connection->Release();
    for (const auto text : ownTexts)
        SysFreeString(record.*text);
    record = {};
}

void copyOwn(const ::TlxVar& from, ::TlxVar& to) {
    to = {};
    to.Connection = ComPtr<IDispatch>(from.Connection).detach();
    to.AccessLevel = from.AccessLevel;
    try {
        for (const auto text : ownTexts)
            to.*text = copyOf(from.*text);
    } catch (...) {
        clearOwn(to);
        throw;
    }
}

Variant ownField(const ::TlxVar& record, std::wstring_view name) {
    constexpr std::array textNames{L"HomeCurrency", L"Site", L"User", L"Language"};
    if (name == L"AccessLevel") return std::int32_t{record.AccessLevel};
    for (std::size_t i = 0; i < textNames.size(); ++i)
        if (name == textNames[i]) return textOf(record.*ownTexts[i]);
    return {};
}

} // namespace

RecordType::RecordType(ComPtr<IRecordInfo> description) : description_(std::move(description)) {
    ULONG size = 0;
    GUID id{};
    check(description_->GetSize(&size), "Reading the description of the session record");
    size_ = size;
    ours_ = size_ == sizeof(::TlxVar) && SUCCEEDED(description_->GetGuid(&id)) && id == recordId;
}

RecordType RecordType::registered() {
    constexpr auto action = "Looking for the session record of Tellurix_Loc";
    ComPtr<ITypeLib> library;
    CLSID classId{};
    GUID libraryId = LIBID_Tellurix_Loc;
    check(CLSIDFromProgID(someClass, &classId), action);
    const std::wstring written = registeredValue(L"CLSID\\" + writtenAs(classId) + L"\\TypeLib");
    if (!written.empty()) check(CLSIDFromString(written.c_str(), &libraryId), action);
    const Version version = latestVersion(writtenAs(libraryId));
    check(LoadRegTypeLib(libraryId, version.major, version.minor, LOCALE_NEUTRAL, library.put()), action);
    ComPtr<IRecordInfo> record = recordOf(*library);
    if (!record) throw AutomationError(TYPE_E_ELEMENTNOTFOUND, std::string(action) + ": it has none");
    return RecordType(std::move(record));
}

bool RecordType::isSessionRecord() const {
    Bstr name;
    return ours_ || (SUCCEEDED(description_->GetName(name.put())) && name.get() != nullptr &&
                     std::wcscmp(name.get(), recordName) == 0);
}

void RecordType::copy(const void* from, void* to) const {
    if (ours_) return copyOwn(*static_cast<const ::TlxVar*>(from), own(to));
    check(description_->RecordInit(to), "Copying the session record");
    check(description_->RecordCopy(const_cast<void*>(from), to), "Copying the session record");
}

void RecordType::clear(void* record) const {
    if (ours_)
        clearOwn(own(record));
    else
        description_->RecordClear(record);
}

Variant RecordType::field(void* record, const wchar_t* name) const {
    if (ours_) return ownField(own(record), name);
    // In place: not everywhere can objects be read otherwise.
    Variant inPlace;
    void* array = nullptr;
    if (FAILED(description_->GetFieldNoCopy(record, name, inPlace.put(), &array))) return {};
    return Variant::copyOf(inPlace);
}

ComPtr<IDispatch> RecordType::connection(void* record) const {
    if (ours_) return ComPtr<IDispatch>(own(record).Connection);
    ULONG count = 1;
    Bstr first;
    check(description_->GetFieldNames(&count, first.put()), "Reading the description of the session record");
    const Variant value = field(record, first.get());
    return value.vt == VT_DISPATCH || value.vt == VT_UNKNOWN ? value.object() : nullptr;
}

} // namespace tellurix::windows
