#pragma once

/// @file
/// All that a host needs: the import session, the models and the framework services that they are made of.

#include "kestrin/geom/geom_model.h"
#include "kestrin/geometry/points.h"
#include "kestrin/neutral/component_model.h"
#include "kestrin/neutral/net_model.h"
#include "kestrin/platform/archive.h"
#include "kestrin/platform/message_box.h"
#include "kestrin/platform/messages.h"
#include "kestrin/platform/window.h"
#include "kestrin/session/import_session.h"
#include "kestrin/session/tokenizer.h"
#include "kestrin/tech/tech_model.h"
#include "kestrin/traces/mp_traces_parser.h"
#include "kestrin/traces/strict/strict_parser.h"
#include "kestrin/traces/traces_model.h"
#include "kestrin/version.h"
