// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

/// The last resort when start-up or the event loop has thrown: shows title and text (UTF-8) in a box with an
/// error icon and no owner, and returns when the user has closed it. Works without an application object.
/// Outside Windows the text also goes to standard error, and the box appears only where DISPLAY or
/// WAYLAND_DISPLAY names a display.
void showErrorBox(const char *title, const char *text);
