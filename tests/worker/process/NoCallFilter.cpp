// Replaces the library's function: the call filter is made but never loaded, so that a test sees what the
// rest of the lock-down refuses.

#include <seccomp.h>

extern "C" int seccomp_load(const scmp_filter_ctx)
{
    return 0;
}
