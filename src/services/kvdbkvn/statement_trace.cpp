#include "frame/kvdbkvn/statement_trace.h"

namespace kv::db {

namespace {

std::function<void(const std::string&)>& Trace() {
    static auto* trace = new std::function<void(const std::string&)>;
    return *trace;
}

}  // namespace

void SetStatementTrace(std::function<void(const std::string&)> trace) {
    Trace() = std::move(trace);
}

void TraceStatement(const std::string& sql) {
    if (Trace()) Trace()(sql);
}

}  // namespace kv::db
