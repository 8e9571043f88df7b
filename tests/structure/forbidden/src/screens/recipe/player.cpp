#include <mpv/client.h>
