// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/places.h"

#include "platform/mountedvolumes.h"

#include <QCoreApplication>
#include <QDir>
#include <QSet>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

struct Places
{
    Q_DECLARE_TR_FUNCTIONS(Places)
};

} // namespace

QString Place::name() const
{
    switch (kind) {
    case Home:
        return Places::tr("Home");
    case Desktop:
        return Places::tr("Desktop");
    case Pictures:
        return Places::tr("Pictures");
    case Music:
        return Places::tr("Music");
    case Documents:
        return Places::tr("Documents");
    case Downloads:
        return Places::tr("Downloads");
    case Volume:
        break;
    }
    const QString last = path.section(u'/', -1, -1, QString::SectionSkipEmpty);
    return last.isEmpty() ? path : last;
}

QList<Place> placesThere()
{
    QList<Place> places;
    QSet<QString> known;
    const auto add = [&](Place::Kind kind, const QString &path) {
        // Who has no folder of a kind is given the home folder for it.
        if (!path.isEmpty() && !known.contains(path))
            places.append({kind, path});
        known.insert(path);
    };
    using Location = QStandardPaths::StandardLocation;
    for (const auto &[kind, location] : {std::pair(Place::Home, Location::HomeLocation),
                                         std::pair(Place::Desktop, Location::DesktopLocation),
                                         std::pair(Place::Pictures, Location::PicturesLocation),
                                         std::pair(Place::Music, Location::MusicLocation),
                                         std::pair(Place::Documents, Location::DocumentsLocation),
                                         std::pair(Place::Downloads, Location::DownloadLocation)}) {
        const QString path = QDir::cleanPath(QStandardPaths::writableLocation(location));
        if (QFileInfo(path).isDir())
            add(kind, path);
    }
    const QStringList volumes = mountedVolumes();
    for (const QString &volume : volumes)
        add(Place::Volume, volume);
    return places;
}
