#include "platform/AlertPresenter.h"
