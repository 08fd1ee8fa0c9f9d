#include "core/records/RecordFile.h"

#include "platform/BinaryFields.h"

#include <cmath>
#include <optional>

namespace {

const QDate &DayZero()
{
    static const QDate day(1899, 12, 30);
    return day;
}

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
        BinaryFields::Append(bytes, static_cast<double>(DayZero().daysTo(record.Date)));
        BinaryFields::Append(bytes, record.Speed);
        BinaryFields::Append(bytes, record.Rate);
        BinaryFields::AppendText(bytes, record.Text);
        BinaryFields::Append(bytes, record.Group);
    }
    return bytes;
}

QByteArray Encode(const std::vector<MistakeRecord> &records)
{
    QByteArray bytes;
    for (const MistakeRecord &record : records) {
        BinaryFields::AppendText(bytes, record.Char);
        BinaryFields::Append(bytes, record.Count);
    }
    return bytes;
}

std::vector<TrainingRecord> DecodeTraining(const QByteArray &bytes)
{
    std::vector<TrainingRecord> records;
    std::vector<QByteArrayView> texts;
    BinaryFields::TextDecoder decoder;
    for (BinaryFields::Reader reader(bytes);;) {
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
    BinaryFields::TextDecoder decoder;
    for (BinaryFields::Reader reader(bytes);;) {
        const QByteArrayView text = reader.TakeText();
        const auto count = reader.Take<qint16>();
        if (!reader.IsIntact())
            break;
        records.push_back({QString(), count});
        texts.push_back(text);
        decoder.Note(text);
    }
    for (std::size_t i = 0; i < records.size(); ++i)
        records[i].Char = decoder.Decode(texts[i]);
    std::erase_if(records, [](const MistakeRecord &record) {
        return record.Char.isEmpty() || record.Char == QChar(QChar::Null);
    });
    return records;
}

} // namespace RecordFile
