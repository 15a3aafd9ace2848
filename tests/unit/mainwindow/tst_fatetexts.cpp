// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/fatemark.h"
#include "mainwindow/fatetexts.h"
#include "support/rowtip.h"

#include <QPainter>

#include <QTest>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace {

/// Its bare shape.
QImage shapeOf(FateMark mark)
{
    QImage image(64, 64, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paintMark(&painter, {2, 2, 60, 60}, mark);
    painter.end();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            image.setPixelColor(x, y, color.alpha() > 127 && color.green() > 200 ? Qt::white : Qt::black);
        }
    }
    return image;
}

} // namespace

/// What becomes of a row, in words and as a picture.
class TestFateTexts final : public QObject
{
    Q_OBJECT

private slots:
    // What only some file systems and folders say.
    void refusalsHaveTheirSentences()
    {
        const auto before = [](Fate fate) {
            return futureSentence({fate, fate, -1, {}}, FilePath::of(u"/dir/a"_s), u"b"_s);
        };
        QCOMPARE(before(Fate::NotAllowed), u"Stays: the file system does not take the new name."_s);
        QCOMPARE(before(Fate::ReadOnly), u"Stays: nothing can be renamed in this folder."_s);
        QCOMPARE(before(Fate::Unknown), u"Cannot be told before the run."_s);
        const auto after = [](Fate fate) {
            return pastSentence({fate, fate, -1, {}});
        };
        QCOMPARE(after(Fate::NotAllowed), u"Not renamed: the file system does not take the new name."_s);
        QCOMPARE(after(Fate::ReadOnly), u"Not renamed: nothing can be renamed in this folder."_s);
        QCOMPARE(after(Fate::Unknown), u"Not renamed: the system refused."_s);
    }

    void figuresAreCounted()
    {
        QCOMPARE(countsText(128, {120, 3, 5, 0}),
                 u"128 files: 120 will be renamed, 3 keep their names, 5 cannot"_s);
        QCOMPARE(countsText(128, {119, 3, 5, 1}),
                 u"128 files: 119 will be renamed, 3 keep their names, 5 cannot, 1 unknown"_s);
        QCOMPARE(countsText(1, {0, 1, 0, 0}), u"1 file: 0 will be renamed, 1 keeps its name, 0 cannot"_s);
        QCOMPARE(selectionText(128, 4), u"128 files, 4 selected"_s);
    }

    void rowSaysItsSentenceAndItsWholePath()
    {
        const QString path = u"/home/ann/<b>My</b> & others/a.txt"_s;
        QCOMPARE(tipLines(rowToolTip({}, path)), QStringList(QDir::toNativeSeparators(path)));
        QCOMPARE(tipLines(rowToolTip(u"Stays: row 1 takes the name <b>."_s, path)),
                 QStringList({u"Stays: row 1 takes the name <b>."_s, QDir::toNativeSeparators(path)}));
    }

    // However long the names: as one line it would lie off the screen.
    void longPathCanBreakItsLines()
    {
        const QString letter = QString::fromUcs4(U"e\u0301"); // two characters that belong together
        const QString path = u"/home/"_s + u"x"_s.repeated(255) + u'/' + letter.repeated(120);
        QTextDocument tip;
        tip.setHtml(rowToolTip({}, path));
        tip.setTextWidth(300);
        QVERIFY2(tip.idealWidth() <= 320, qPrintable(QString::number(tip.idealWidth())));
        QVERIFY(!rowToolTip({}, path).contains(u"e\u200b"_s));
        QCOMPARE(tipLines(rowToolTip({}, path)), QStringList(QDir::toNativeSeparators(path)));
    }

    void everyFateHasItsMark()
    {
        QCOMPARE(markOf(Fate::Renamed, Fate::Renamed), FateMark::None);
        QCOMPARE(markOf(Fate::Separator, Fate::Renamed), FateMark::Moves);
        QCOMPARE(markOf(Fate::Unchanged, Fate::Unchanged), FateMark::Keeps);
        QCOMPARE(markOf(Fate::Unknown, Fate::Unknown), FateMark::Unknown);
        QCOMPARE(markOf(Fate::Taken, Fate::Taken), FateMark::Stays);
        QCOMPARE(markOf(Fate::Separator, Fate::NoFolder), FateMark::Stays);
    }

    void marksDifferInShape()
    {
        const QList<FateMark> marks = {FateMark::Keeps, FateMark::Moves, FateMark::Unknown, FateMark::Stays};
        for (int i = 0; i < marks.size(); ++i) {
            for (int j = 0; j < i; ++j)
                QVERIFY(shapeOf(marks.at(i)) != shapeOf(marks.at(j)));
        }
    }
};

QTEST_MAIN(TestFateTexts)
#include "tst_fatetexts.moc"
