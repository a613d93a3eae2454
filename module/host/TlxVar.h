#pragma once

#include "module/base/database.h"

#include <memory>
#include <string>
#include <utility>

namespace tellurix::host {

/// The currency that every contract can use beside the home currency.
inline constexpr const char* euro = "EUR";

/// The host's own record that a session came with: it may have more than the module reads, and its
/// services may change it. Only the host's side looks into it.
class HostRecord {
public:
    virtual ~HostRecord() = default;
    virtual std::unique_ptr<HostRecord> copy() const = 0;
};

/// Such a record, or none, held as a value: a copy of its holder has a copy of the record.
class CarriedRecord {
public:
    CarriedRecord() = default;
    explicit CarriedRecord(std::unique_ptr<HostRecord> record) : record_(std::move(record)) {}
    CarriedRecord(const CarriedRecord& other) : record_(other.record_ ? other.record_->copy() : nullptr) {}
    CarriedRecord(CarriedRecord&&) noexcept = default;
    CarriedRecord& operator=(CarriedRecord other) noexcept {
        record_ = std::move(other.record_);
        return *this;
    }
    ~CarriedRecord() = default;

    HostRecord* get() const { return record_.get(); }

private:
    std::unique_ptr<HostRecord> record_;
};

/// The host's session: who works, in which database, with which settings. The host builds it and
/// hands it over by reference; every screen copies it whole at the start of its `Run` and passes it
/// on to the host's services and to its child screens. The module never changes one.
struct TlxVar {
    /// The open connection that every statement runs on. Day-first: 'dd.mm.yyyy' is a date on it.
    base::Connection* connection = nullptr;
    /// The user's access level; contracts without a level of their own use it.
    int accessLevel = 0;
    /// Short name of the home currency, the other one beside `euro`.
    std::string homeCurrency;
    /// The site, which some screens compare with "WVO" and "UELZEN".
    std::string site;
    std::string user;
    /// Language of the user: "de", "en".
    std::string language = "de";
    /// The record that the values above were read from; none where no foreign host has handed one over.
    CarriedRecord record{};
};

} // namespace tellurix::host
