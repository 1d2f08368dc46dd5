#include "platform/ListController.h"
