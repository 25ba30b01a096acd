#pragma once

#include "core/guard/HandlerRecord.h"

// An installed application that handles web links.
using Browser = HandlerRecord;
