#pragma once

#include "core/records/RecordFile.h"
#include "core/shell/SettingFile.h"
#include "core/shell/UserSettings.h"
#include "support/Fakes.h"
#include "support/SkinnedInstall.h"
#include "ui/shell/ChooseFile.h"
#include "ui/speedtest/TestWindow.h"
#include "ui/widgets/TypingBox.h"
#include "ui/widgets/TypingLine.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QTimer>

/// A speed test of the user Ann in an install folder of its own: what a person sees and does there.
class SpeedTestCase : public QObject
{
protected:
    void SetUp()
    {
        m_services.emplace();
        m_install.emplace(QStringLiteral("Ann"));
        m_navigator.emplace();
        m_messages.emplace();
        m_owner = std::make_unique<QWidget>();
    }
    void TearDown()
    {
        Public_Function::SetFileAnswerer({});
        m_dialogHand.reset();
        delete m_window;
        m_owner.reset();
        m_messages.reset();
        m_navigator.reset();
        m_install.reset();
        m_services.reset();
    }

    void WriteText(const QString &text)
    {
        m_install->Write(QStringLiteral("Data/English/E_General/lunch.txt"), text.toUtf8());
    }
    template <typename Window>
    void Open()
    {
        m_window = new Window(*m_navigator, m_owner.get());
        m_window->ShowTest();
        QVERIFY(QTest::qWaitForWindowActive(m_window));
        QCOMPARE(QApplication::focusWidget(), Box());
    }

    TypingBox *Box() const { return m_window->findChild<TypingBox *>(QStringLiteral("rtfCursor")); }
    TypingLine *Line(const QString &name) const { return m_window->findChild<TypingLine *>(name); }
    QString Text(const QString &label) const { return m_window->findChild<QLabel *>(label)->text(); }
    /// A row's text and how it looks: "-" untyped, "r" right, "w" wrong; the lit character is in brackets.
    QString Row(const QString &name) const
    {
        const TypingLine *line = Line(name);
        QString shown = line->Text() + u'/';
        for (int i = 0; i < line->Length(); ++i)
            shown += QStringLiteral("-rw").at(static_cast<int>(line->LookAt(i)));
        if (line->Mark() >= 0)
            shown += u'/' + line->Text().at(line->Mark());
        return shown;
    }
    void Type(const QString &text) const { QTest::keyClicks(Box(), text); }
    void Press(Qt::Key key) const { QTest::keyClick(Box(), key); }
    void Compose(const QString &preedit, const QString &commit) const
    {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(commit);
        QApplication::sendEvent(Box(), &event);
    }
    QAbstractButton *Button(const QString &name) const
    {
        return m_window->findChild<QAbstractButton *>(name);
    }
    void Click(const QString &name) const { QTest::mouseClick(Button(name), Qt::LeftButton); }
    bool IsRunning() const { return m_window->findChild<QTimer *>(QStringLiteral("tmrTime"))->isActive(); }
    void Tick(int count = 1) const
    {
        for (int i = 0; i < count; ++i)
            QMetaObject::invokeMethod(m_window->findChild<QTimer *>(QStringLiteral("tmrTime")), "timeout");
    }
    /// Does something to the next dialog that opens, and sees to it that it closes.
    void InDialog(std::function<void(QWidget *)> action)
    {
        m_dialogsSeen = 0;
        m_dialogHand = std::make_unique<QTimer>();
        m_dialogHand->setSingleShot(true);
        connect(m_dialogHand.get(), &QTimer::timeout, this, [this, action] {
            QWidget *dialog = QApplication::activeModalWidget();
            if (!dialog)
                return;
            ++m_dialogsSeen;
            action(dialog);
            if (QApplication::activeModalWidget() == dialog)
                QTest::keyClick(dialog, Qt::Key_Escape);
        });
        m_dialogHand->start(0);
    }
    /// Does what ends the test, and returns what the result dialog says.
    QStringList ResultOf(const std::function<void()> &end)
    {
        QStringList said;
        InDialog([&said](QWidget *dialog) {
            for (const char *label : {"Label2", "Label3", "Label4"})
                said += dialog->findChild<QLabel *>(QLatin1StringView(label))->text();
        });
        end();
        m_dialogHand->stop(); // where no dialog opened
        return said;
    }
    /// "speed rate name" of each stored test.
    QStringList Records() const
    {
        QStringList all;
        const QByteArray bytes = m_install->Read(QStringLiteral("Users/Ann/RecordEX.Dat"));
        for (const TrainingRecord &record : RecordFile::DecodeTraining(bytes))
            all += QStringLiteral("%1 %2 %3").arg(record.Speed).arg(record.Rate).arg(record.Text);
        return all;
    }

    std::optional<FakeServices> m_services;
    std::optional<SkinnedInstall> m_install;
    std::optional<FakeNavigator> m_navigator;
    std::optional<FakeAnswers> m_messages;
    std::unique_ptr<QWidget> m_owner;
    QPointer<TestWindow> m_window;
    std::unique_ptr<QTimer> m_dialogHand;
    int m_dialogsSeen = 0;
};
