// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// The maker's addresses and the program's version, as the build was configured.
namespace Maker {

[[nodiscard]] QString applicationVersion();
[[nodiscard]] QString organizationDomain();

/// Scheme, host and port of the update service; the path is always "/".
[[nodiscard]] QString updateUrl();
[[nodiscard]] QString homeUrl();
[[nodiscard]] QString contactUrl();
[[nodiscard]] QString donateUrl();
[[nodiscard]] QString contributeUrl();
[[nodiscard]] QString productsUrl();

/// The address as it is shown to people: without its scheme.
[[nodiscard]] QString withoutScheme(const QString &url);

} // namespace Maker
