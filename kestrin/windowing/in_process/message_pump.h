#pragma once

/// @file
/// The pump of a host without a windowing system.

#include "kestrin/windowing/host_calls.h"

namespace kestrin {

/// Dispatches waiting messages before every line: a look at an empty queue costs next to nothing.
class MessagePump {
 public:
  static void BeforeLine() { PumpMessages(); }
};

}  // namespace kestrin
