#pragma once

#include "core/engine/KTest.h"
#include "core/records/RecordFile.h"
#include "core/shell/Public_Define.h"
#include "support/FakeServices.h"
#include "support/TestInstall.h"

#include <QFile>
#include <algorithm>

/// A recorded speed test (see tests/core/data/typing/README.md) that is typed again.
class TypingCase
{
public:
    explicit TypingCase(const QString &path)
        : m_install(QStringLiteral("Anna"))
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            qFatal("cannot read %s", qPrintable(path));
        QStringList *part = &m_setup;
        const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
        for (const QString &line : lines) {
            if (line == u"== lesson")
                part = &m_lesson;
            else if (line == u"== typing")
                part = &m_steps;
            else if (line == u"== result")
                part = &m_expected;
            else
                *part += line;
        }
        m_expected.removeAll(QString()); // the end of the file
    }

    QStringList Expected() const { return m_expected; }

    QStringList Play()
    {
        KTest test;
        for (const QString &line : m_setup)
            SetUp(test, line);
        for (const auto &[name, records] : {std::pair(English, m_english), std::pair(Chinese, m_chinese)}) {
            if (!records.empty())
                m_install.Write(name, RecordFile::Encode(records));
        }
        m_install.Write(QStringLiteral("Data/case.txt"), m_lesson.join(QStringLiteral("\r\n")).toUtf8());
        Shared().TestFile[0] = Shared().InstallDir + QStringLiteral("Data\\case.txt");
        if (!test.LoadLesson())
            return {QStringLiteral("not loaded")};
        for (const QString &line : m_steps) {
            if (!line.isEmpty())
                Step(test, line);
        }
        AddResult(test);
        AddRecords();
        return m_result;
    }

private:
    static void TypeAll(KTest &test, const QString &text)
    {
        for (const char32_t character : text.toStdU32String())
            test.CheckString(QString::fromUcs4(&character, 1));
    }

    void SetUp(KTest &test, const QString &line)
    {
        const QString value = line.section(u' ', 1);
        if (line.startsWith(u"columns"))
            test.m_nMaxCols = value.toInt();
        else if (line == u"keys")
            test.m_bEnglish = true;
        else if (line.startsWith(u"stored"))
            (value[0] < QChar(128) ? m_english : m_chinese)
                .push_back({value.section(u'=', 0, 0), value.section(u'=', 1).toShort()});
    }

    void Step(KTest &test, const QString &line)
    {
        const QString time = line.section(u' ', 0, 0);
        const QString action = line.section(u' ', 1, 1);
        const QString argument = line.section(u' ', 2);
        m_services.clock.Move(time.toDouble() - m_seconds);
        m_seconds = time.toDouble();
        if (action == u"start")
            test.StartType();
        else if (action == u"pause")
            test.PauseType();
        else if (action == u"sample")
            test.CalTypeSpeed();
        else if (action == u"stop")
            test.StopType();
        else if (action == u"next")
            test.SetNextLine();
        else if (action == u"type")
            TypeAll(test, argument);
        else if (action == u"unit")
            test.CheckString(argument);
        else if (action == u"back")
            for (int i = argument.toInt(); i > 0; --i)
                test.BackSpace();
        else if (action == u"climb")
            Climb(test, argument.toInt());
        else if (action == u"show")
            AddFigures(test, time);
        else if (action == u"save")
            test.SaveData(argument);
        else
            qFatal("no such step: %s", qPrintable(line));
    }

    void Climb(KTest &test, int halfMinutes)
    {
        for (int i = 1; i <= halfMinutes; ++i) {
            TypeAll(test, QString(i, u'x'));
            m_services.clock.Move(30);
            m_seconds += 30;
            test.CalTypeSpeed();
        }
    }

    void AddFigures(const KTest &test, const QString &time)
    {
        m_result += QStringLiteral("at %1: line %2 column %3, speed %4, rate %5, progress %6")
                        .arg(time)
                        .arg(test.CurrentLine())
                        .arg(test.m_nCurCol)
                        .arg(test.GetAveSpeed())
                        .arg(test.GetRightRate())
                        .arg(test.GetProgress());
    }

    void AddResult(const KTest &test)
    {
        for (int line = 1; line <= test.LineCount(); ++line)
            m_result += LineText(test, line);
        m_result += QStringLiteral("speed %1 rate %2 backspaces %3")
                        .arg(static_cast<double>(test.m_fLastAveSpeed))
                        .arg(static_cast<double>(test.m_fLastRate))
                        .arg(test.m_nBackSpace);
        const SpeedCurve curve = test.GetSpeed();
        m_result += QStringLiteral("chart:") + Pairs(curve.sSpeedTime, curve.nSpeed);
        const WrongCharacters wrong = test.GetWrong();
        m_result += QStringLiteral("wrong:") + (wrong.any ? Pairs(wrong.sWrong, wrong.nWrong) : QString());
    }

    static QString LineText(const KTest &test, int line)
    {
        constexpr int longest = 60;
        const auto length =
            static_cast<int>(std::max(test.InputLine(line).size(), test.TestLine(line).size()));
        QString typed;
        QString marks;
        for (int position = 0; position < length; ++position) {
            QString character;
            marks += u".+x"[static_cast<int>(test.IsRightKey(character, position, line))];
            typed += character;
        }
        while (marks.endsWith(u'.'))
            marks.chop(1);
        if (marks.size() > longest) {
            typed = QStringLiteral("%1 typed").arg(typed.size());
            marks = QStringLiteral("%1 marks").arg(marks.size());
        }
        return QStringLiteral("%1 |").arg(line) + test.LoadTestLine(line) + u'|' + typed + u'|' + marks +
               u'|';
    }

    static QString Pairs(const QStringList &names, const std::vector<int> &values)
    {
        QString text;
        for (qsizetype i = 0; i < names.size(); ++i)
            text += u' ' + names[i] + u'=' + QString::number(values[static_cast<std::size_t>(i)]);
        return text;
    }

    void AddRecords()
    {
        QString training = QStringLiteral("record:");
        for (const TrainingRecord &record :
             RecordFile::DecodeTraining(m_install.Read(QStringLiteral("Users/Anna/RecordEX.Dat"))))
            training += QStringLiteral(" %1 %2 %3")
                            .arg(static_cast<double>(record.Speed))
                            .arg(static_cast<double>(record.Rate))
                            .arg(record.Text);
        QString mistakes = QStringLiteral("mistakes:");
        for (const QString &name : {English, Chinese}) {
            for (const MistakeRecord &record : RecordFile::DecodeMistakes(m_install.Read(name)))
                mistakes += u' ' + record.Char + u'=' + QString::number(record.Count);
        }
        m_result += {training, mistakes};
    }

    const QString English = QStringLiteral("Users/Anna/MistakeEN.Dat");
    const QString Chinese = QStringLiteral("Users/Anna/MistakeCN.Dat");

    FakeServices m_services;
    TestInstall m_install;
    double m_seconds = 0;
    std::vector<MistakeRecord> m_english;
    std::vector<MistakeRecord> m_chinese;
    QStringList m_setup;
    QStringList m_lesson;
    QStringList m_steps;
    QStringList m_expected;
    QStringList m_result;
};
