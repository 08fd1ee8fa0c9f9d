#include "core/records/RecordFile.h"

#include "platform/Files.h"

#include <QtEndian>
#include <cmath>
#include <limits>
#include <optional>

namespace {

constexpr qsizetype longestText = std::numeric_limits<quint16>::max();

const QDate &DayZero()
{
    static const QDate day(1899, 12, 30);
    return day;
}

template <typename Number>
void Append(QByteArray &bytes, Number number)
{
    char raw[sizeof(Number)];
    qToLittleEndian(number, raw);
    bytes.append(raw, sizeof raw);
}

void AppendText(QByteArray &bytes, const QString &text)
{
    QByteArray encoded = text.toUtf8();
    if (encoded.size() > longestText) {
        qsizetype end = longestText;
        while ((static_cast<uchar>(encoded[end]) & 0xC0) == 0x80) // inside a character
            --end;
        encoded.truncate(end);
    }
    Append(bytes, static_cast<quint16>(encoded.size()));
    bytes += encoded;
}

/// Takes fields off the front of a file; once one is cut off, so is all that follows.
class FieldReader
{
public:
    explicit FieldReader(const QByteArray &bytes)
        : m_rest(bytes)
    {
    }

    bool IsIntact() const { return m_intact; }

    template <typename Number>
    Number Take()
    {
        const QByteArrayView raw = TakeBytes(sizeof(Number));
        return m_intact ? qFromLittleEndian<Number>(raw.data()) : Number();
    }

    QByteArrayView TakeText() { return TakeBytes(Take<quint16>()); }

private:
    QByteArrayView TakeBytes(qsizetype count)
    {
        m_intact = m_intact && count <= m_rest.size();
        if (!m_intact)
            return {};
        const QByteArrayView taken = m_rest.first(count);
        m_rest = m_rest.sliced(count);
        return taken;
    }

    QByteArrayView m_rest;
    bool m_intact = true;
};

/// Decodes the texts of one file alike. A text of a character or two in GB18030 often passes for UTF-8, so
/// the majority of the texts decides what the file is in.
class TextDecoder
{
public:
    void Note(QByteArrayView text)
    {
        for (const char c : text) {
            if (static_cast<uchar>(c) >= 0x80) {
                m_balance += text.isValidUtf8() ? 1 : -1;
                return;
            }
        }
    }

    QString Decode(QByteArrayView text) const
    {
        if (text.isValidUtf8() && m_balance >= 0)
            return QString::fromUtf8(text);
        return m_balance < 0 ? Public_Function::DecodeGb18030(text.toByteArray())
                             : Public_Function::DecodeText(text.toByteArray());
    }

private:
    qsizetype m_balance = 0; // texts beyond ASCII that are UTF-8, less those that are not
};

std::optional<QDate> DateOfDay(double day)
{
    static const auto firstDay = static_cast<double>(DayZero().daysTo(QDate(100, 1, 1)));
    static const auto lastDay = static_cast<double>(DayZero().daysTo(QDate(9999, 12, 31)));
    const double whole = std::trunc(day); // a fraction is a time of that day
    if (!(whole >= firstDay && whole <= lastDay))
        return std::nullopt;
    const QDate date = DayZero().addDays(static_cast<qint64>(whole));
    return date.year() == DayZero().year() ? std::nullopt : std::optional(date);
}

float FiniteOrZero(float number)
{
    return std::isfinite(number) ? number : 0.0F;
}

} // namespace

namespace RecordFile {

QByteArray Encode(const std::vector<TrainingRecord> &records)
{
    QByteArray bytes;
    for (const TrainingRecord &record : records) {
        Append(bytes, static_cast<double>(DayZero().daysTo(record.Date)));
        Append(bytes, record.Speed);
        Append(bytes, record.Rate);
        AppendText(bytes, record.Text);
        Append(bytes, record.Group);
    }
    return bytes;
}

QByteArray Encode(const std::vector<MistakeRecord> &records)
{
    QByteArray bytes;
    for (const MistakeRecord &record : records) {
        AppendText(bytes, record.Char);
        Append(bytes, record.Count);
    }
    return bytes;
}

std::vector<TrainingRecord> DecodeTraining(const QByteArray &bytes)
{
    std::vector<TrainingRecord> records;
    std::vector<QByteArrayView> texts;
    TextDecoder decoder;
    for (FieldReader reader(bytes);;) {
        const std::optional<QDate> date = DateOfDay(reader.Take<double>());
        const float speed = FiniteOrZero(reader.Take<float>());
        const float rate = FiniteOrZero(reader.Take<float>());
        const QByteArrayView text = reader.TakeText();
        const auto group = reader.Take<qint16>();
        if (!reader.IsIntact())
            break;
        if (!date)
            continue;
        records.push_back({*date, speed, rate, QString(), group});
        texts.push_back(text);
        decoder.Note(text);
    }
    for (std::size_t i = 0; i < records.size(); ++i)
        records[i].Text = decoder.Decode(texts[i]);
    return records;
}

std::vector<MistakeRecord> DecodeMistakes(const QByteArray &bytes)
{
    std::vector<MistakeRecord> records;
    std::vector<QByteArrayView> texts;
    TextDecoder decoder;
    for (FieldReader reader(bytes);;) {
        const QByteArrayView text = reader.TakeText();
        const auto count = reader.Take<qint16>();
        if (!reader.IsIntact())
            break;
        if (text.isEmpty() || (text.size() == 1 && text[0] == '\0'))
            continue;
        records.push_back({QString(), count});
        texts.push_back(text);
        decoder.Note(text);
    }
    for (std::size_t i = 0; i < records.size(); ++i)
        records[i].Char = decoder.Decode(texts[i]);
    return records;
}

} // namespace RecordFile
