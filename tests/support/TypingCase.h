#pragma once

#include "core/engine/KFreeType.h"
#include "core/engine/KTest.h"
#include "core/records/IUserRecord.h"
#include "core/shell/Public_Define.h"
#include "support/FakeServices.h"
#include "support/TestInstall.h"

#include <QFile>
#include <QRegularExpression>
#include <QTextStream>
#include <algorithm>
#include <functional>
#include <map>

/// A recorded typing session (see tests/core/data/typing/README.md) that is typed again.
class TypingCase
{
public:
    explicit TypingCase(const QString &path)
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            qFatal("cannot read %s", qPrintable(path));
        m_parts = QString::fromUtf8(file.readAll()).split(QRegularExpression(QStringLiteral("== \\w+\n")));
        m_records.SetCurrentUser(QStringLiteral("Anna"));
    }

    QStringList Expected() const { return Lines(m_parts.at(3)); }

    QStringList Play()
    {
        for (const QString &line : Lines(m_parts.at(0)))
            Do(line);
        Shared().TestFile[0] = Shared().InstallDir + QStringLiteral("case.txt");
        m_install.Write(QStringLiteral("case.txt"), m_parts.at(1).toUtf8());
        if (!m_test.LoadLesson())
            return {QStringLiteral("not loaded")};
        const double begin = m_services.clock.Now();
        for (const QString &line : Lines(m_parts.at(2))) {
            m_time = line.section(u' ', 0, 0);
            m_services.clock.Move(begin + m_time.toDouble() - m_services.clock.Now());
            Do(line.section(u' ', 1));
        }
        AddResult();
        return Lines(m_result);
    }

private:
    static QStringList Lines(const QString &text) { return text.split(u'\n', Qt::SkipEmptyParts); }

    void Do(const QString &step)
    {
        const QString value = step.section(u' ', 1);
        const std::map<std::string, std::function<void()>> actions{
            {"columns", [&] { m_test.m_nMaxCols = value.toInt(); }},
            {"free", [&] { m_session = &m_free; }},
            {"keys", [&] { m_session->m_bEnglish = true; }},
            {"stored", [&] { StoreMistake(value.section(u'=', 0, 0), value.section(u'=', 1).toShort()); }},
            {"start", [&] { m_session->StartType(); }},
            {"pause", [&] { m_session->PauseType(); }},
            {"sample", [&] { m_session->CalTypeSpeed(); }},
            {"stop", [&] { m_session->StopType(); }},
            {"next", [&] { m_session->SetNextLine(); }},
            {"type",
             [&] {
                 for (const char32_t character : value.toStdU32String())
                     m_session->CheckString(QString::fromUcs4(&character, 1));
             }},
            {"unit", [&] { m_session->CheckString(value); }},
            {"back",
             [&] {
                 for (int units = value.toInt(); units > 0; --units)
                     m_session->BackSpace();
             }},
            {"show", [&] { AddFigures(); }},
            {"save", [&] { m_session->SaveData(value); }}};
        actions.at(step.section(u' ', 0, 0).toStdString())();
    }

    void StoreMistake(const QString &character, qint16 count)
    {
        bool chinese = true;
        m_records.AddMistakeRecord(character, count, chinese);
        m_records.SaveMistakeRecordFile(chinese ? 1 : 0);
    }

    void AddFigures()
    {
        m_out << "at " << m_time << ": line " << m_session->CurrentLine() << " column "
              << m_session->m_nCurCol << ", speed " << m_session->GetAveSpeed() << ", rate "
              << m_test.GetRightRate() << ", progress " << m_test.GetProgress() << '\n';
    }

    void AddResult()
    {
        for (int line = 1; line <= std::max(m_test.LineCount(), m_session->CurrentLine()); ++line)
            m_out << line << " |" << m_test.LoadTestLine(line) << '|' << m_session->GetInputLine(line) << '|'
                  << Marks(line) << "|\n";
        m_out << "speed " << m_session->m_fLastAveSpeed << " rate " << m_session->m_fLastRate
              << " backspaces " << m_session->m_nBackSpace << "\nchart:";
        const SpeedCurve curve = m_session->GetSpeed();
        AddPairs(curve.sSpeedTime, curve.nSpeed);
        m_out << "\nwrong:";
        if (const WrongCharacters wrong = m_session->GetWrong(); wrong.any)
            AddPairs(wrong.sWrong, wrong.nWrong);
        m_out << "\nrecord:";
        for (const TrainingRecord &record : RecordFile::DecodeTraining(Stored("RecordEX.Dat")))
            m_out << ' ' << record.Speed << ' ' << record.Rate << ' ' << record.Text;
        m_out << "\nmistakes:";
        for (const char *const file : {"MistakeEN.Dat", "MistakeCN.Dat"}) {
            for (const MistakeRecord &record : RecordFile::DecodeMistakes(Stored(file)))
                m_out << ' ' << record.Char << '=' << record.Count;
        }
    }

    QString Marks(int line) const
    {
        QString marks;
        QString character;
        const std::size_t length = std::max(m_test.InputLine(line).size(), m_test.TestLine(line).size());
        for (int position = 0; position < static_cast<int>(length); ++position)
            marks += u".+x"[static_cast<int>(m_test.IsRightKey(character, position, line))];
        return marks.first(marks.lastIndexOf(QRegularExpression(QStringLiteral("[^.]"))) + 1);
    }

    void AddPairs(const QStringList &names, const std::vector<int> &values)
    {
        for (qsizetype i = 0; i < names.size(); ++i)
            m_out << ' ' << names[i] << '=' << values[static_cast<std::size_t>(i)];
    }

    QByteArray Stored(const char *file) const
    {
        return m_install.Read(QStringLiteral("Users/Anna/") + QLatin1StringView(file));
    }

    FakeServices m_services;
    TestInstall m_install{QStringLiteral("Anna")};
    IUserRecord m_records;
    KTest m_test;
    KFreeType m_free;
    TypingSession *m_session = &m_test;
    QStringList m_parts; ///< set-up, lesson, typing, result
    QString m_time;
    QString m_result;
    QTextStream m_out{&m_result};
};
