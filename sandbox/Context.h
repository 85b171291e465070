#pragma once

namespace vl {

class Clock;
class FaultTable;
class Outbox;
class RequestLog;
class Store;
struct SandboxOptions;

// What every group of routes works with; owned by `Sandbox`.
struct Context {
    Store& store;
    Clock& clock;
    Outbox& outbox;
    RequestLog& requests;
    FaultTable& faults;
    const SandboxOptions& options;
};

} // namespace vl
