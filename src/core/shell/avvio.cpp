#include "core/shell/avvio.h"
