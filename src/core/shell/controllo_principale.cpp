#include "core/shell/controllo_principale.h"
