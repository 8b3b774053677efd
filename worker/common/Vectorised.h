#pragma once

/// For loops over pixels: built once for any x86-64 and once for those with AVX2, chosen when the program is
/// loaded. Other machines, other compilers and the sanitizers (which are not ready that early) get the one
/// plain form.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__) && !defined(__SANITIZE_ADDRESS__) &&     \
    !defined(__SANITIZE_THREAD__)
#define LUMAPORT_VECTORISED __attribute__((target_clones("arch=x86-64-v3", "default"), noinline))
#else
#define LUMAPORT_VECTORISED __attribute__((noinline))
#endif
