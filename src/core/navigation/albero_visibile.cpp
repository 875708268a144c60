#include "core/navigation/albero_visibile.h"
