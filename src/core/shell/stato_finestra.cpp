#include "core/shell/stato_finestra.h"
