#include "core/navigation/collection_albero.h"
