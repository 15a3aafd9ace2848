// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "app/application.h"

#include "core/maker.h"
#include "desktop/errorbox.h"

#include <QByteArray>

#include <cstdio>

namespace {

constexpr auto errorTitle = "We are sorry, but an error has occurred!";

QByteArray contactLine()
{
    return "Please contact us at: " + Maker::contactUrl().toUtf8();
}

} // namespace

int main(int argc, char **argv)
{
    try {
        Application application(argc, argv);
        application.init();
        return application.run();
    } catch (const char *message) {
        char text[1024] = {};
        std::snprintf(text, sizeof(text), "Error Type: %s\n\n%s", message, contactLine().constData());
        showErrorBox(errorTitle, text);
    } catch (...) {
        // Deliberate: the two buffers differ in size.
        char text[256] = {};
        std::snprintf(text, sizeof(text), "Error Type: Unknown\n\n%s", contactLine().constData());
        showErrorBox(errorTitle, text);
    }
    return 1;
}
