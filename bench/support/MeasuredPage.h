#pragma once

#include "bench/support/PageState.h"
#include "bench/support/measure.h"

// This version of awaitable.hpp uses std::exchange without including it.
#include <utility>

#include <boost/asio/awaitable.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/core/tcp_stream.hpp>
#include <boost/beast/websocket/stream.hpp>
#include <nlohmann/json.hpp>

#include <cstdint>
#include <string>

namespace tellurix::bench {

/// Something the user did, as the page says it.
nlohmann::json clicked();
nlohmann::json focused();
nlohmann::json rowChosen(int row);
nlohmann::json typed(char character);
nlohmann::json keyPressed(int key);
/// The caret of a box was put somewhere.
nlohmann::json caretMoved(int to);

/// What a browser does for one user, without the drawing: speaks with the workbench through a socket
/// as the page does, one thing at a time.
class MeasuredPage {
public:
    explicit MeasuredPage(boost::asio::io_context& context) : stream_(context) {}

    /// Connects to a workbench on this machine and begins a session.
    boost::asio::awaitable<void> connect(std::uint16_t port, std::string key);

    /// Tells what the user did and waits until the session has dealt with it.
    /// @return the time from before the sending until the answer was there
    boost::asio::awaitable<Clock::duration> perform(nlohmann::json event);
    /// The same for a control of the form in front, or with an empty name for the one with the focus.
    boost::asio::awaitable<Clock::duration> perform(std::string form, std::string control,
                                                    nlohmann::json event);

    /// Tells it only; the next `perform` waits for this too.
    boost::asio::awaitable<void> tell(std::string form, std::string control, nlohmann::json event);

    const PageState& state() const { return state_; }

private:
    nlohmann::json addressed(const std::string& form, const std::string& control, nlohmann::json event) const;
    boost::asio::awaitable<void> write(const nlohmann::json& message);
    boost::asio::awaitable<nlohmann::json> read();

    boost::beast::websocket::stream<boost::beast::tcp_stream> stream_;
    boost::beast::flat_buffer buffer_;
    PageState state_;
    std::uint64_t number_ = 0;
};

} // namespace tellurix::bench
