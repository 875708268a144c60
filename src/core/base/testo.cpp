#include "core/base/testo.h"
