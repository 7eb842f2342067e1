#pragma once

// Symbols of the library's public surface; everything else stays hidden.
#if defined(KSSYSTEMCONFIGDLG_BUILD)
#define KSCONFIGDLG_EXPORT __attribute__((visibility("default")))
#else
#define KSCONFIGDLG_EXPORT
#endif
