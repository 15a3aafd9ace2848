// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include "core/localizer.h"
#include "core/settingsstore.h"
#include "support/httpurls.h"
#include "support/modalanswer.h"

#include <QDir>
#include <QLabel>
#include <QLayout>
#include <QMetaMethod>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

#include <memory>

/// What every test of a dialog starts with: a data directory and a configuration folder of its own, an empty
/// settings store, English and German on offer, and the desktop replaced.
class DialogsTest : public QObject
{
    Q_OBJECT

protected:
    /// The widget, layout or other object of that name and class; fails the test when there is none.
    template <class T>
    static T *find(const QObject &parent, const char *name)
    {
        T *found = parent.findChild<T *>(QLatin1String(name));
        if (!found || qstrcmp(found->metaObject()->className(), T::staticMetaObject.className()) != 0)
            qFatal("no %s %s", T::staticMetaObject.className(), name);
        return found;
    }

    /// The slots that the class itself declares, in the order of its meta-object.
    static QByteArrayList slotsOf(const QMetaObject &meta)
    {
        QByteArrayList signatures;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            if (meta.method(i).methodType() == QMetaMethod::Slot)
                signatures.append(meta.method(i).methodSignature());
        }
        return signatures;
    }

    /// The names of what Tab visits, starting after the dialog itself; of parts of widgets only the whole.
    static QStringList tabOrder(const QWidget &dialog)
    {
        QStringList names;
        for (const QWidget *widget = dialog.nextInFocusChain(); widget != &dialog;
             widget = widget->nextInFocusChain()) {
            const QString name = widget->objectName();
            if ((widget->focusPolicy() & Qt::TabFocus) != 0 && !name.isEmpty() &&
                !name.startsWith(QLatin1String("qt_")))
                names.append(name);
        }
        return names;
    }

    /// The names of what Tab presses visit from the widget with the focus on, until that has it again. A
    /// widget whose links Tab visits too counts once.
    static QStringList tabbed(QWidget &window)
    {
        QStringList names;
        const QWidget *first = QApplication::focusWidget();
        do {
            const QString name = QApplication::focusWidget()->objectName();
            if (names.isEmpty() || names.constLast() != name)
                names.append(name);
            QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
        } while (QApplication::focusWidget() != first && names.size() < 50);
        return names;
    }

    static void selectLanguage(QTreeWidget *list, const QString &code)
    {
        const QList<QTreeWidgetItem *> found = list->findItems(code, Qt::MatchExactly, 0);
        if (found.size() != 1)
            qFatal("%d languages %s", int(found.size()), qPrintable(code));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(found[0]).center());
    }

    static QVariant setting(SettingKey key) { return SettingsStore::instance()->value(key, QVariant()); }

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<OpenedUrls> opened;

private slots:
    void init()
    {
        folder = std::make_unique<QTemporaryDir>();
        QVERIFY(folder->isValid());
        QVERIFY(QDir::setCurrent(folder->path()));
        qputenv("XDG_CONFIG_HOME", folder->filePath(QStringLiteral("xdg")).toUtf8());
        QCoreApplication::setApplicationName(QStringLiteral("Orvanto"));
        QCoreApplication::setApplicationVersion(QStringLiteral("1.2.0.5"));
        SettingsStore::destroy();
        Localizer::destroy();
        Localizer::instance()->discover();
        opened = std::make_unique<OpenedUrls>(
            QStringList{QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("file")});
    }

    void cleanup()
    {
        opened.reset();
        Localizer::destroy();
        SettingsStore::destroy();
        QDir::setCurrent(QDir::rootPath());
        folder.reset();
    }
};
