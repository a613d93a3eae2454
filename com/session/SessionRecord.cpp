#include "com/session/SessionRecord.h"

#include "com/session/record_type.h"
#include "database/ado/AdoConnection.h"

namespace tellurix::windows {

SessionRecord::SessionRecord(const host::TlxVar& session)
    : connection_(dynamic_cast<const ado::AdoConnection&>(*session.connection).object()),
      homeCurrency_(session.homeCurrency),
      site_(session.site),
      user_(session.user),
      language_(session.language),
      record_{.Connection = connection_.get(),
              .AccessLevel = session.accessLevel,
              .HomeCurrency = homeCurrency_.get(),
              .Site = site_.get(),
              .User = user_.get(),
              .Language = language_.get()},
      type_(sessionRecordType()) {}

} // namespace tellurix::windows
