// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

/// Decides where the program's writable data lives (the program's own directory in portable mode, otherwise a
/// folder of the user's), makes it and makes it the current directory. One that cannot be made or entered is
/// the data directory all the same: nothing can be read from it then, and saving fails. Always returns true.
/// To be called once, after the application and organisation names are set.
/// Throws a plain character string when portable mode is asked for and the program's directory is not
/// writable.
bool setupDataDirectory();
