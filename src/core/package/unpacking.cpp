#include "core/package/unpacking.h"
