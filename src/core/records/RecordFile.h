#pragma once

#include <QByteArray>
#include <QDate>
#include <QString>
#include <vector>

/// One day's best result in a record group.
struct TrainingRecord
{
    QDate Date;
    float Speed = 0; ///< in the unit of the module that added it, words or characters a minute
    float Rate = 0;  ///< percent, 0 to 100
    QString Text;    ///< what was practised
    qint16 Group = 0;
};

/// How often one character was mistyped.
struct MistakeRecord
{
    QString Char; ///< one character, upper case where it is a letter of ASCII
    qint16 Count = 0;
};

/// The bytes of the record files: records back to back, little-endian, no header. Texts have a 16-bit length
/// in bytes in front; they are written in UTF-8 and read in UTF-8 or GB18030, whichever the file is in.
namespace RecordFile {

/// Date as days since 1899-12-30 (double), Speed, Rate (single), Text, Group. A text of more than 65,535
/// bytes is cut between two characters.
QByteArray Encode(const std::vector<TrainingRecord> &records);
/// Char, Count.
QByteArray Encode(const std::vector<MistakeRecord> &records);

/// The records up to the end, or to the one that is cut off. Those dated in 1899, which a zero date is, and
/// those without a date of the calendar are skipped; a speed or rate that is no finite number becomes 0.
std::vector<TrainingRecord> DecodeTraining(const QByteArray &bytes);
/// The records up to the end, or to the one that is cut off, without those whose character is empty or NUL.
std::vector<MistakeRecord> DecodeMistakes(const QByteArray &bytes);

} // namespace RecordFile
