#include "database/tracing/TracingConnection.h"

#include <utility>

namespace tellurix::tracing {

namespace {

using base::ExecuteResult;
using base::UpdatableRecordset;

Statement begun(std::string text) {
    return {.text = std::move(text), .sent = std::chrono::system_clock::now()};
}

/// Runs a piece of work of the statement, notes how long it took, and tells the observer of a failure.
template <typename Work>
auto watched(const TracingConnection::Observer& observer, Statement& statement, const Work& work) {
    const auto start = std::chrono::steady_clock::now();
    const auto stop = [&] {
        statement.duration +=
            std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - start);
    };
    try {
        auto result = work();
        stop();
        return result;
    } catch (const std::exception& error) {
        statement.error = error.what();
        stop();
        observer(statement);
        throw;
    }
}

/// The rows of a query. An adapter may send it no earlier than when something of it is asked for, so it is
/// told with the first answer; a row that fails later is told by itself.
class TracingRows final : public base::Recordset {
private:
    template <typename Work>
    auto asked(const Work& work) const {
        if (!std::exchange(answered_, true)) {
            auto answer = watched(observer_, statement_, work);
            observer_(statement_);
            return answer;
        }
        if (!statement_.error.empty()) return work(); // which has been told
        try {
            return work();
        } catch (const std::exception& error) {
            statement_ = begun("[rows] of " + statement_.text);
            statement_.error = error.what();
            observer_(statement_);
            throw;
        }
    }

public:
    TracingRows(std::unique_ptr<base::Recordset> inner, Statement statement,
                const TracingConnection::Observer& observer)
        : inner_(std::move(inner)), statement_(std::move(statement)), observer_(observer) {}
    ~TracingRows() override {
        if (!answered_) observer_(statement_);
    }
    TracingRows(const TracingRows&) = delete;
    TracingRows& operator=(const TracingRows&) = delete;

    std::size_t fieldCount() const override {
        return asked([&] { return inner_->fieldCount(); });
    }
    std::string fieldName(std::size_t index) const override {
        return asked([&] { return inner_->fieldName(index); });
    }
    base::FieldType fieldType(std::size_t index) const override {
        return asked([&] { return inner_->fieldType(index); });
    }
    int textWidth(std::size_t index) const override {
        return asked([&] { return inner_->textWidth(index); });
    }
    bool atEnd() override {
        return asked([&] { return inner_->atEnd(); });
    }
    void moveNext() override {
        asked([&] {
            inner_->moveNext();
            return true;
        });
    }
    base::Value field(std::size_t index) override {
        return asked([&] { return inner_->field(index); });
    }

private:
    std::unique_ptr<base::Recordset> inner_;
    mutable Statement statement_;
    const TracingConnection::Observer& observer_;
    mutable bool answered_ = false;
};

/// Runs one piece of work and tells the observer how it went.
template <typename Work>
auto observed(const TracingConnection::Observer& observer, std::string text, const Work& work) {
    Statement statement = begun(std::move(text));
    auto result = watched(observer, statement, [&] { return work(statement); });
    observer(statement);
    return result;
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
    Statement traced = begun(std::string{statement});
    ExecuteResult result = watched(observer_, traced, [&] { return inner_.execute(statement); });
    traced.rowsAffected = result.rowsAffected;
    if (result.rows)
        result.rows = std::make_unique<TracingRows>(std::move(result.rows), std::move(traced), observer_);
    else
        observer_(traced);
    return result;
}

std::unique_ptr<UpdatableRecordset> TracingConnection::openUpdatable(std::string_view query) {
    return observed(observer_, std::string{query}, [&](Statement&) {
        return std::unique_ptr<UpdatableRecordset>{
            std::make_unique<TracingRecordset>(inner_.openUpdatable(query), std::string{query}, observer_)};
    });
}

} // namespace tellurix::tracing
