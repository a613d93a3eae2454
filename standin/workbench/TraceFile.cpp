#include "standin/workbench/TraceFile.h"

#include "module/base/date_format.h"
#include "standin/workbench/json_text.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <iostream>
#include <system_error>

namespace tellurix::standin {

namespace {

std::string threeDigits(std::int64_t number) {
    return std::to_string(1000 + number).substr(1);
}

} // namespace

TraceFile::TraceFile(const std::string& path)
    : path_(path), file_(::open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600)) {
    if (file_ < 0) throw std::system_error{errno, std::generic_category(), "trace file " + path};
}

TraceFile::~TraceFile() {
    ::close(file_);
}

void TraceFile::write(const tracing::Statement& statement) {
    const std::string line = traceLine(statement) + "\n";
    const std::lock_guard lock{mutex_};
    // One write to a file opened for appending: lines of other processes do not get in between.
    const ssize_t written = ::write(file_, line.data(), line.size());
    if (written == static_cast<ssize_t>(line.size()) || failed_) return;
    failed_ = true;
    std::cerr << "tellurix-workbench: the trace file " << path_ << " could not be written\n";
}

std::string traceLine(const tracing::Statement& statement) {
    using std::chrono::floor, std::chrono::milliseconds, std::chrono::seconds;
    // In universal time: the files of sessions in different places, and of a night when the clocks
    // change, can be put in order.
    const base::DateTime sent{floor<milliseconds>(statement.sent).time_since_epoch()};
    const auto thousandths = (sent - floor<seconds>(sent)) / milliseconds{1};
    const auto microseconds = statement.duration.count();
    return R"({"time": ")" + base::formatDate(sent, "yyyy-MM-ddThh:mm:ss", base::Locale::german()) + "." +
           threeDigits(thousandths) + R"(Z", "ms": )" + std::to_string(microseconds / 1000) + "." +
           threeDigits(microseconds % 1000) + R"(, "statement": )" + jsonText(statement.text) +
           R"(, "rows": )" + (statement.rowsAffected < 0 ? "null" : std::to_string(statement.rowsAffected)) +
           R"(, "error": )" + (statement.error.empty() ? "null" : jsonText(statement.error)) + "}";
}

} // namespace tellurix::standin
