#include "platform/HandlerChangeWatcher.h"
