// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Keeps every library of the process loaded until it ends. LeakSanitizer names an allocation by its
// library, and drivers of OpenGL are unloaded before it looks.
extern "C" __attribute__((visibility("default"))) int dlclose(void* /*handle*/)
{
    return 0;
}
