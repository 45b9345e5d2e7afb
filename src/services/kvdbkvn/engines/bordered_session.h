#pragma once

#include <chrono>
#include <memory>
#include <new>
#include <string>
#include <utility>

#include "services/kvdbkvn/engines/engine_module.h"

namespace kv::db {

/// Keeps from leaving a module what its engine throws when there is no memory. How far the engine
/// came then, nobody knows: the session is not alive from then on, and answers nothing more. What
/// it has given out stays until it ends.
template <typename Engine>
class BorderedSession final : public ModuleSession {
public:
    explicit BorderedSession(std::unique_ptr<Engine> engine) : engine_(std::move(engine)) {}

    void StopQueryWhen(IsOver* isOver) noexcept override { engine_->StopQueryWhen(isOver); }
    bool LimitStatements(std::chrono::milliseconds limit, std::string& failure) noexcept override {
        return Ask(false, failure, [&] { return engine_->LimitStatements(limit, failure); });
    }
    dialect::Target Target() const noexcept override { return engine_->Target(); }
    bool IsAlive() noexcept override {
        std::string ignored;
        return Ask(false, ignored, [&] { return engine_->IsAlive(); });
    }
    bool WasGoneAhead() const noexcept override { return !spent_ && engine_->WasGoneAhead(); }
    bool HasSchema(const std::string& name) noexcept override {
        std::string ignored;
        return Ask(false, ignored, [&] { return engine_->HasSchema(name); });
    }
    const dialect::Columns* ColumnsOf(const std::string& schema, const std::string& table,
                                      std::string& failure) noexcept override {
        return Ask<const dialect::Columns*>(
            nullptr, failure, [&] { return engine_->ColumnsOf(schema, table, failure); });
    }
    bool Check(const std::string& sql, std::string& failure) noexcept override {
        return Ask(false, failure, [&] { return engine_->Check(sql, failure); });
    }
    std::unique_ptr<Rows> Query(const std::string& sql, std::string& failure) noexcept override {
        return Ask<std::unique_ptr<Rows>>(nullptr, failure,
                                          [&] { return engine_->Query(sql, failure); });
    }
    int Execute(const std::string& sql, std::string& failure) noexcept override {
        return Ask(-1, failure, [&] { return engine_->Execute(sql, failure); });
    }
    bool Commit(std::string& failure) noexcept override {
        return Ask(false, failure, [&] { return engine_->Commit(failure); });
    }
    bool Rollback() noexcept override {
        std::string ignored;
        return Ask(false, ignored, [&] { return engine_->Rollback(); });
    }

private:
    template <typename Answer, typename Question>
    Answer Ask(Answer failed, std::string& failure, const Question& question) noexcept {
        try {
            if (!spent_) return question();
        } catch (const std::bad_alloc&) {
            spent_ = true;
        }
        // Short enough to take no memory.
        failure = "Out of memory.";
        return failed;
    }

    std::unique_ptr<Engine> engine_;
    /// Whether the engine has run out of memory.
    bool spent_ = false;
};

}  // namespace kv::db
