#pragma once

#include "core/guard/HandlerRecord.h"

// An installed application that handles mailto links.
using EmailClient = HandlerRecord;
