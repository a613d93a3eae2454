#include "com/automation/Variant.h"

#include "com/automation/AutomationError.h"
#include "com/automation/Bstr.h"
#include "com/automation/variables.h"

#include <utility>

namespace tellurix::windows {

namespace {

constexpr auto byReference = [](VARENUM type) { return static_cast<VARTYPE>(type | VT_BYREF); };

/// These headers do not say that a function only reads.
VARIANT* changeable(const VARIANT& value) {
    return const_cast<VARIANT*>(&value);
}

} // namespace

Variant::Variant() : VARIANT() {
    VariantInit(this);
}

Variant::Variant(std::int16_t value) : Variant() {
    vt = VT_I2;
    iVal = value;
}

Variant::Variant(std::int32_t value) : Variant() {
    vt = VT_I4;
    lVal = value;
}

Variant::Variant(std::int64_t value) : Variant() {
    vt = VT_I8;
    llVal = value;
}

Variant::Variant(double value) : Variant() {
    vt = VT_R8;
    dblVal = value;
}

Variant::Variant(std::string_view text) : Variant() {
    bstrVal = Bstr(text).detach();
    vt = VT_BSTR;
}

Variant::Variant(const DECIMAL& value) : Variant() {
    // The number fills the whole variant, its type included, which is therefore set afterwards.
    decVal = value;
    vt = VT_DECIMAL;
}

Variant::Variant(const ComPtr<IDispatch>& object) : Variant() {
    vt = VT_DISPATCH;
    pdispVal = ComPtr<IDispatch>(object).detach();
}

Variant::Variant(const Variant& other) : Variant() {
    check(VariantCopy(this, changeable(other)), "Copying a value");
}

Variant::Variant(Variant&& other) noexcept : Variant() {
    std::swap(static_cast<VARIANT&>(*this), static_cast<VARIANT&>(other));
}

Variant& Variant::operator=(Variant other) noexcept {
    std::swap(static_cast<VARIANT&>(*this), static_cast<VARIANT&>(other));
    return *this;
}

Variant::~Variant() {
    VariantClear(this);
}

Variant Variant::copyOf(const VARIANT& value) {
    Variant copy;
    check(VariantCopyInd(&copy, changeable(followed(value))), "Copying a value");
    return copy;
}

Variant Variant::null() {
    Variant value;
    value.vt = VT_NULL;
    return value;
}

Variant Variant::oleDate(DATE date) {
    Variant value;
    value.vt = VT_DATE;
    value.date = date;
    return value;
}

Variant Variant::missing() {
    Variant value;
    value.vt = VT_ERROR;
    value.scode = DISP_E_PARAMNOTFOUND;
    return value;
}

Variant Variant::reference(VARIANT& target) {
    Variant value;
    value.vt = byReference(VT_VARIANT);
    value.pvarVal = &target;
    return value;
}

Variant Variant::reference(VARIANT_BOOL& target) {
    Variant value;
    value.vt = byReference(VT_BOOL);
    value.pboolVal = &target;
    return value;
}

Variant Variant::reference(BSTR& target) {
    Variant value;
    value.vt = byReference(VT_BSTR);
    value.pbstrVal = &target;
    return value;
}

Variant Variant::reference(void* record, IRecordInfo& type) {
    Variant value;
    value.vt = byReference(VT_RECORD);
    value.pvRecord = record;
    value.pRecInfo = &type;
    return value;
}

VARIANT* Variant::put() {
    VariantClear(this);
    return this;
}

void Variant::detachTo(VARIANT& target) {
    target = *this;
    VariantInit(this);
}

Variant Variant::as(VARTYPE type) const {
    Variant converted;
    check(VariantChangeTypeEx(&converted, changeable(*this), LOCALE_INVARIANT,
                              VARIANT_NOUSEROVERRIDE | VARIANT_ALPHABOOL, type),
          "Converting a value");
    return converted;
}

std::string Variant::text() const {
    return vt == VT_BSTR ? textOf(bstrVal) : textOf(as(VT_BSTR).bstrVal);
}

std::int32_t Variant::integer() const {
    return vt == VT_I4 ? lVal : as(VT_I4).lVal;
}

double Variant::number() const {
    return vt == VT_R8 ? dblVal : as(VT_R8).dblVal;
}

bool Variant::flag() const {
    return (vt == VT_BOOL ? boolVal : as(VT_BOOL).boolVal) != VARIANT_FALSE;
}

ComPtr<IDispatch> Variant::object() const {
    if (vt == VT_DISPATCH) return ComPtr<IDispatch>(pdispVal);
    if (vt != VT_UNKNOWN) throw AutomationError(DISP_E_TYPEMISMATCH, "The value is no object");
    return ComPtr<IUnknown>(punkVal).as<IDispatch>();
}

} // namespace tellurix::windows
