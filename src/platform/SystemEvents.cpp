#include "platform/SystemEvents.h"
