#include "screens/recipe/frmrecept.h"
