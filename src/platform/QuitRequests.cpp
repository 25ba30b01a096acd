#include "platform/QuitRequests.h"
