#include "core/base/numeri.h"
