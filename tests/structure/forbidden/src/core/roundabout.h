#include "core/../forms/form.h"
