#include "services/ServicesTest.h"

namespace tellurix::tests {

common::DateTime FixedClock::now() const {
    using namespace std::chrono_literals;
    return common::startOf(common::Date{2026y / 3 / 9}) + 8h;
}

ServicesTest::ServicesTest()
    : connection_(database_.connect()),
      services(display, session, catalogue, common::Locale::german(), std::make_unique<FixedClock>()),
      host(services.host()) {
    session.connection = connection_.get();
}

std::string ServicesTest::value(const std::string& query) {
    const auto row = connection_->open(query);
    return row->atEnd() ? "no row" : row->text(row->fieldName(0));
}

} // namespace tellurix::tests
