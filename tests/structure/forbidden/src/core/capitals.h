#include "richtext/basZobrazRtfSarne.h"
