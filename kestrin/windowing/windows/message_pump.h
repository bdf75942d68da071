#pragma once

/// @file
/// The pump of a host on Windows.

#include "kestrin/windowing/host_calls.h"

namespace kestrin {

/// Dispatches waiting messages before the first line, and then each time the system's tick count has changed.
/// A look at the system's queue costs microseconds, more than most lines; to ask for the count costs
/// nanoseconds; and a person cannot tell a tick from a line.
class MessagePump {
 public:
  void BeforeLine() {
    const DWORD tick = GetTickCount();
    if (tick == lastTick_) return;
    lastTick_ = tick;
    PumpMessages();
  }

 private:
  DWORD lastTick_ = GetTickCount() - 1;
};

}  // namespace kestrin
