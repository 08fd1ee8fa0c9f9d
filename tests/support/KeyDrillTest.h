#pragma once

#include "core/shell/SettingFile.h"
#include "core/shell/UserSettings.h"
#include "support/Fakes.h"
#include "support/SkinnedInstall.h"
#include "ui/drills/frmEn_KeyTrain_Basic.h"

#include <QtTest>
#include <QtWidgets>

/// A drill of the user Ann, the junior key drill if not another one, in an install folder of its own: what a
/// person sees and does there.
class KeyDrillTest : public QObject
{
protected:
    static constexpr QLatin1StringView StandardFolder{"Data/English/T_Character/Standard/"};

    void SetUp()
    {
        m_services.emplace();
        m_install.emplace(QStringLiteral("Ann"));
        m_navigator.emplace();
        m_messages.emplace();
        WriteLesson("00.txt", QStringLiteral("Home row\r\nas Df\r\n  1!  \tx\r\n"));
    }
    void TearDown() { delete m_drill; }

    void WriteLesson(const char *name, const QString &text)
    {
        m_install->Write(StandardFolder + QLatin1StringView(name), text.toUtf8());
    }
    template <typename Drill = frmEn_KeyTrain_Basic>
    void Open(const QString &index = QString())
    {
        if (!index.isNull())
            Store(QStringLiteral("KeyTrain_Index"), index);
        m_drill = new Drill(*m_navigator, &m_owner);
        m_drill->ShowDrill();
        QVERIFY(QTest::qWaitForWindowActive(m_drill));
        QTest::qWait(0);
    }
    void Leave()
    {
        m_drill->close();
        QTRY_VERIFY(m_drill.isNull());
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
    /// What is stored of the keys that were missed, in hexadecimal digits.
    QByteArray Mistakes() const { return m_install->Read(QStringLiteral("Users/Ann/MistakeEN.Dat")).toHex(); }

    void Type(const QString &text) { QTest::keyClicks(m_drill, text); }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(m_drill, key, modifiers);
    }
    void InputMethod(const QString &preedit, const QString &commit)
    {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(commit);
        QCoreApplication::sendEvent(m_drill, &event);
    }
    void Click(const char *name) { QTest::mouseClick(Part(name), Qt::LeftButton); }
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

    QWidget *Part(const char *name) const { return m_drill->findChild<QWidget *>(QString::fromLatin1(name)); }
    QString Text(const char *label) const { return qobject_cast<QLabel *>(Part(label))->text(); }
    QString State(const char *name) const { return Part(name)->accessibleDescription(); }
    QString Keys() const { return State("PromptKeys"); }
    QString Keyboard() const { return State("CXKeyBoard1"); }
    QString Cap(int index) const
    {
        const QWidget *cap = Part(qPrintable(QStringLiteral("PromptKey%1").arg(index)));
        return cap->accessibleName() + QStringLiteral(": ") + cap->accessibleDescription();
    }
    bool IsRunning() const { return m_drill->findChild<QTimer *>()->isActive(); }
    QStringList Status() const
    {
        QMetaObject::invokeMethod(m_drill->findChild<QTimer *>(), "timeout");
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
    QPointer<DrillWindow> m_drill;
};
