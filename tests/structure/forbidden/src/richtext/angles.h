#include <forms/form.h>
