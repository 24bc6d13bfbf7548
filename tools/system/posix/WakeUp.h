#pragma once

namespace LagomareTools::WakeUp {

// A pipe to this process itself. A signal handler writes to it, which ends a poll() that waits for its other end.

/// The descriptor to poll for reading. Makes the pipe; call it before a handler can call send().
[[nodiscard]] int descriptor();
/// May be called in a signal handler.
void send() noexcept;
/// Takes what was sent out of the pipe.
void clear() noexcept;

} // namespace LagomareTools::WakeUp
