#pragma once

/// @file
/// Includes every header that a host needs: the import session, the models, the board that they describe, the
/// strict Traces reader, and the framework classes that these use.

#include "kestrin/board/findings.h"
#include "kestrin/board/read_board.h"
#include "kestrin/framework/archive.h"
#include "kestrin/framework/stdio_file.h"
#include "kestrin/geometry/geometry_model.h"
#include "kestrin/neutral/component_model.h"
#include "kestrin/neutral/net_model.h"
#include "kestrin/records/points.h"
#include "kestrin/records/source_lines.h"
#include "kestrin/session/import_session.h"
#include "kestrin/session/tokenizer.h"
#include "kestrin/tech/tech_model.h"
#include "kestrin/traces/strict/mp_traces_parser.h"
#include "kestrin/traces/strict/strict_parser.h"
#include "kestrin/traces/traces_model.h"
#include "kestrin/version.h"
#include "kestrin/windowing/message_box.h"
#include "kestrin/windowing/messages.h"
#include "kestrin/windowing/window.h"
