#pragma once

#include "core/records/RecordFile.h"
#include "core/shell/SettingFile.h"
#include "core/shell/UserSettings.h"
#include "support/Fakes.h"
#include "support/SkinnedInstall.h"
#include "ui/widgets/TypingLine.h"

#include <QtTest>
#include <QtWidgets>

/// A window that the user Ann types in, in an install folder of its own: what a person sees and does there.
class WindowTest : public QObject
{
protected:
    void SetUp()
    {
        m_services.emplace();
        m_install.emplace(QStringLiteral("Ann"));
        m_navigator.emplace();
        m_messages.emplace();
    }
    void TearDown() { delete m_window; }

    /// Makes the window, shows it by a function of it, and waits until it has the focus.
    template <typename Window, typename Show, typename... Arguments>
    void OpenBy(Show show, Arguments... arguments)
    {
        auto *window = new Window(*m_navigator, &m_owner);
        m_window = window;
        (window->*show)(arguments...);
        QVERIFY(QTest::qWaitForWindowActive(window));
        QTest::qWait(0);
    }
    static void Store(const QString &key, const QString &value,
                      const QString &section = QStringLiteral("English"))
    {
        SettingFile file(Public_Function::SettingFilePath());
        file.Set(section, key, value);
        QVERIFY(file.Save());
    }
    static QString Stored(const QString &key, const QString &section = QStringLiteral("English"))
    {
        return SettingFile(Public_Function::SettingFilePath()).Text(section, key, QStringLiteral("-"));
    }
    /// "speed rate name" of each record in a file.
    QStringList Records(const char *file) const
    {
        QStringList all;
        const QByteArray bytes = m_install->Read(QStringLiteral("Users/Ann/") + QLatin1StringView(file));
        for (const TrainingRecord &record : RecordFile::DecodeTraining(bytes))
            all += QStringLiteral("%1 %2 %3").arg(record.Speed).arg(record.Rate).arg(record.Text);
        return all;
    }

    /// What has the focus in the window, or had it last.
    QWidget *Focus() const { return m_window->focusWidget(); }
    void Type(const QString &text) const { QTest::keyClicks(Focus(), text); }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(Focus(), key, modifiers);
    }
    void InputMethod(const QString &preedit, const QString &commit) const
    {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(commit);
        QCoreApplication::sendEvent(Focus(), &event);
    }
    void Click(QAnyStringView name) const { QTest::mouseClick(Part(name), Qt::LeftButton); }
    /// Does something to the next dialog that opens, or leaves it by Escape.
    void InDialog(std::function<void(QWidget *)> action = [](QWidget *dialog) {
        QTest::keyClick(dialog, Qt::Key_Escape);
    })
    {
        QTimer::singleShot(0, this, [action] {
            QWidget *dialog = QApplication::activeModalWidget();
            if (dialog && QTest::qWaitFor([dialog] { return dialog->isActiveWindow(); }))
                action(dialog);
            if (QApplication::activeModalWidget() == dialog && dialog)
                qFatal("the dialog stays open");
        });
    }

    template <typename Control = QWidget>
    Control *Part(QAnyStringView name) const
    {
        return m_window->findChild<Control *>(name.toString());
    }
    QString Text(QAnyStringView label) const { return Part<QLabel>(label)->text(); }
    TypingLine *Line(QAnyStringView name) const { return Part<TypingLine>(name); }
    /// A row's text and how it looks, "-" untyped, "r" right, "w" wrong, and then the lit character.
    QString Row(QAnyStringView name) const
    {
        const TypingLine *line = Line(name);
        QString shown = line->Text() + u'/';
        for (int i = 0; i < line->Length(); ++i)
            shown += QStringLiteral("-rw")[static_cast<int>(line->LookAt(i))];
        return line->Mark() < 0 ? shown : shown + u'/' + line->Text().at(line->Mark());
    }
    QTimer *Ticks() const { return m_window->findChild<QTimer *>(); }
    bool IsRunning() const { return Ticks()->isActive(); }
    QStringList Status() const
    {
        QMetaObject::invokeMethod(Ticks(), "timeout");
        return Shown();
    }
    QStringList Shown() const
    {
        return {Text("labTime"), Text("labSpeed"), Text("labVeracity"), Part("picProgress")->toolTip()};
    }

    std::optional<FakeServices> m_services;
    std::optional<SkinnedInstall> m_install;
    std::optional<FakeNavigator> m_navigator;
    std::optional<FakeAnswers> m_messages;
    QWidget m_owner;
    QPointer<QWidget> m_window;
};
