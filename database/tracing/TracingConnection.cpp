#include "database/tracing/TracingConnection.h"

#include <utility>

namespace tellurix::tracing {

namespace {

using base::ExecuteResult;
using base::UpdatableRecordset;

/// Runs one piece of work and tells the observer how it went.
template <typename Work>
auto observed(const TracingConnection::Observer& observer, std::string text, const Work& work) {
    Statement statement{.text = std::move(text), .sent = std::chrono::system_clock::now()};
    const auto start = std::chrono::steady_clock::now();
    const auto finish = [&] {
        statement.duration =
            std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - start);
        observer(statement);
    };
    try {
        auto result = work(statement);
        finish();
        return result;
    } catch (const std::exception& error) {
        statement.error = error.what();
        finish();
        throw;
    }
}

class TracingRecordset final : public UpdatableRecordset {
public:
    TracingRecordset(std::unique_ptr<UpdatableRecordset> inner, std::string query,
                     const TracingConnection::Observer& observer)
        : inner_(std::move(inner)), query_(std::move(query)), observer_(observer) {}

    std::size_t fieldCount() const override { return inner_->fieldCount(); }
    std::string fieldName(std::size_t index) const override { return inner_->fieldName(index); }
    base::FieldType fieldType(std::size_t index) const override { return inner_->fieldType(index); }
    int textWidth(std::size_t index) const override { return inner_->textWidth(index); }
    bool atEnd() override { return inner_->atEnd(); }
    void moveNext() override {
        inner_->moveNext();
        changes_.clear();
    }
    base::Value field(std::size_t index) override { return inner_->field(index); }
    void setField(std::string_view name, base::Value value) override {
        inner_->setField(name, std::move(value));
        changes_ += (changes_.empty() ? "" : ", ") + std::string{name};
    }
    void update() override {
        observed(observer_, "[update] " + std::exchange(changes_, {}) + " of " + query_,
                 [this](Statement& statement) {
                     inner_->update();
                     return statement.rowsAffected = 1;
                 });
    }
    void remove() override {
        observed(observer_, "[delete] a row of " + query_, [this](Statement& statement) {
            inner_->remove();
            return statement.rowsAffected = 1;
        });
    }

private:
    std::unique_ptr<UpdatableRecordset> inner_;
    std::string query_;
    const TracingConnection::Observer& observer_;
    std::string changes_;
};

} // namespace

ExecuteResult TracingConnection::execute(std::string_view statement) {
    return observed(observer_, std::string{statement}, [&](Statement& traced) {
        ExecuteResult result = inner_.execute(statement);
        traced.rowsAffected = result.rowsAffected;
        return result;
    });
}

std::unique_ptr<UpdatableRecordset> TracingConnection::openUpdatable(std::string_view query) {
    return observed(observer_, std::string{query}, [&](Statement&) {
        return std::unique_ptr<UpdatableRecordset>{
            std::make_unique<TracingRecordset>(inner_.openUpdatable(query), std::string{query}, observer_)};
    });
}

} // namespace tellurix::tracing
