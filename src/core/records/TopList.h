#pragma once

#include <QDate>
#include <QString>
#include <vector>

/// One speed test record of any user.
struct TopListEntry
{
    QString userName;
    float speed = 0; ///< words a minute
    float rate = 0;  ///< percent
    QDate date;
    QString text; ///< the mode of the test

    /// Speed and rate as they are shown, "45.5wpm 98%".
    QString RecordText() const;
};

/// The speed test records of all users on the list, fastest first; equally fast ones in the order of the user
/// list, and of one user in the order of dates. Reads the records of every user at each call.
std::vector<TopListEntry> CollectTopList();
