#include "display/browser/session/SmallThread.h"

#include <system_error>
#include <utility>

namespace tellurix::browser {

namespace {

extern "C" void* runThreadBody(void* argument) {
    const std::unique_ptr<std::function<void()>> body{static_cast<std::function<void()>*>(argument)};
    (*body)();
    return nullptr;
}

} // namespace

void SmallThread::start(std::size_t stackBytes, std::function<void()> body) {
    auto argument = std::make_unique<std::function<void()>>(std::move(body));
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, stackBytes);
    const int error = pthread_create(&thread_, &attributes, &runThreadBody, argument.get());
    pthread_attr_destroy(&attributes);
    if (error != 0) throw std::system_error{error, std::generic_category(), "starting a session's thread"};
    // From here on the thread owns it.
    static_cast<void>(argument.release());
    running_ = true;
}

void SmallThread::join() {
    if (!running_) return;
    pthread_join(thread_, nullptr);
    running_ = false;
}

} // namespace tellurix::browser
