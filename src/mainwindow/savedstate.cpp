// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/savedstate.h"

#include <QDataStream>
#include <QRect>

#include <algorithm>

namespace {

enum Marker : quint8 {
    FloatingTabs = 0xf9,
    Tabs = 0xfa,
    Widget = 0xfb,
    // At the top of the data: tool bars with their geometry.
    Sequence = 0xfc,
    DockAreas = 0xfd,
    ToolBars = 0xfe
};

// Qt draws nothing beyond this.
constexpr int longestSide = 32767;
// Eight by eight thousand: it takes a quarter of a gigabyte, and a second to draw.
constexpr qint64 mostPixels = qint64{1} << 26;

[[nodiscard]] bool isDrawable(qint64 width, qint64 height)
{
    return width <= longestSide && height <= longestSide && std::max<qint64>(width, 0) * height <= mostPixels;
}

/// Reads a rectangle. Far edges give a wrong size, but it is the one that Qt reckons with.
[[nodiscard]] bool readDrawable(QDataStream &stream)
{
    quint32 left = 0;
    quint32 top = 0;
    quint32 right = 0;
    quint32 bottom = 0;
    stream >> left >> top >> right >> bottom;
    return isDrawable(static_cast<qint32>(right - left + 1), static_cast<qint32>(bottom - top + 1));
}

constexpr int areaCount = 4;
// Qt takes a third of a second for this many items in one area. One within areas within areas costs their
// depth, squared.
constexpr qint64 mostWork = 50'000;

/// Walks through a layout as QMainWindow::restoreState() does. Each function answers false where that one
/// would refuse the data, index beyond its areas, or count on behind the end.
class LayoutReader final
{
public:
    explicit LayoutReader(const QByteArray &data)
        : stream(data)
    {
        stream.setVersion(QDataStream::Qt_5_0);
    }

    [[nodiscard]] bool readAll()
    {
        skipNumbers(2); // Qt's marker and version
        while (!stream.atEnd()) {
            if (!readPart())
                return false;
        }
        return true;
    }

private:
    [[nodiscard]] bool readPart()
    {
        switch (read<quint8>()) {
        case DockAreas:
            return readDockAreas();
        case FloatingTabs:
            skipNumbers(4);
            return isWithin(++floatingTabs) && readDockArea(1);
        case Sequence:
            return readToolBars(true);
        case ToolBars:
            return readToolBars(false);
        default:
            return false;
        }
    }

    [[nodiscard]] bool readDockAreas()
    {
        const auto count = read<qint32>();
        for (qint32 i = 0; i < count; ++i) {
            const auto area = read<qint32>();
            skipNumbers(2);
            if (area < 0 || area >= areaCount || !isWithin(1) || !readDockArea(1))
                return false;
        }
        skipNumbers(6);
        return true;
    }

    [[nodiscard]] bool readDockArea(int depth)
    {
        const auto marker = read<quint8>();
        if (marker != Tabs && marker != Sequence)
            return false;
        if (marker == Tabs)
            skipNumbers(1);
        read<quint8>();
        const auto count = read<qint32>();
        for (qint32 i = 0; i < count; ++i) {
            if (!isWithin(depth * depth))
                return false;
            const auto item = read<quint8>();
            if (item == Widget) {
                read<QString>();
                read<quint8>();
            }
            if (item == Widget || item == Sequence)
                skipNumbers(4);
            if (item != Widget && (item != Sequence || !readDockArea(depth + 1)))
                return false;
        }
        return true;
    }

    [[nodiscard]] bool readToolBars(bool withGeometry)
    {
        const auto lines = read<qint32>();
        for (qint32 line = 0; line < lines; ++line) {
            read<qint32>();
            const auto count = read<qint32>();
            if (!isWithin(1))
                return false;
            for (qint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
                read<QString>();
                read<quint8>();
                skipNumbers(2);
                const auto place = read<quint32>();
                const quint32 height = withGeometry ? read<quint32>() >> 16 : 0;
                const bool isFloating = (place & 1) != 0;
                if (isFloating && !isDrawable(place >> 17, height))
                    return false;
            }
            if (stream.status() != QDataStream::Ok)
                return false;
        }
        return true;
    }

    template <typename Value>
    Value read()
    {
        Value value{};
        stream >> value;
        return value;
    }
    void skipNumbers(int count)
    {
        for (int i = 0; i < count; ++i)
            read<qint32>();
    }

    [[nodiscard]] bool isWithin(qint64 more)
    {
        work += more;
        return work <= mostWork;
    }

    QDataStream stream;
    qint64 work = 0;
    int floatingTabs = 0;
};

} // namespace

bool SavedState::isSafeLayout(const QByteArray &data)
{
    return LayoutReader(data).readAll();
}

bool SavedState::isSafeGeometry(const QByteArray &data)
{
    QDataStream stream(data);
    quint16 version = 0;
    quint8 maximized = 0;
    quint8 fullScreen = 0;
    stream.skipRawData(sizeof(quint32)); // Qt's marker
    stream >> version;
    stream.skipRawData(sizeof(quint16) + sizeof(QRect)); // minor version, frame
    const bool isNormalDrawable = readDrawable(stream);
    stream.skipRawData(sizeof(qint32)); // screen
    stream >> maximized >> fullScreen;
    stream.skipRawData(sizeof(qint32)); // the screen's width
    const bool isCurrentDrawable = readDrawable(stream);
    const bool usesNormal = version <= 2 || maximized != 0 || fullScreen != 0;
    return usesNormal ? isNormalDrawable : isCurrentDrawable;
}
