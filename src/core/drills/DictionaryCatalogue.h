#pragma once

#include <QList>
#include <QString>

/// The dictionaries that the program offers.
namespace DictionaryCatalogue {

struct Dictionary
{
    QString displayName;
    QString fileName; ///< without extension
};

struct Class
{
    QString name;   ///< as people read it
    QString folder; ///< below the install folder, product form, with a separator at its end
    QList<Dictionary> dictionaries;

    /// The folder as a dictionary is loaded from it: below today's `InstallDir`.
    QString Path() const;
};

/// "Normal", "Professional" and "Familiar".
const QList<Class> &Classes();

/// The folder of the "Normal" dictionaries, the only ones that are shown with explanations: a full path.
QString ExplainedPath();

} // namespace DictionaryCatalogue
