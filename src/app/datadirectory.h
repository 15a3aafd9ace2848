// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

/// Decides where the program's writable data lives (the program's own directory in portable mode, otherwise a
/// folder of the user's), makes sure it exists and makes it the current directory. Always returns true.
/// To be called once, after the application and organisation names are set.
/// Throws a plain character string when portable mode is asked for and the program's directory is not
/// writable.
bool setupDataDirectory();
