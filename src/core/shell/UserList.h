#pragma once

#include <QString>
#include <QStringList>

/// The users of this installation: the list file `user.ini` and the folder of each user. Nothing is kept in
/// memory; every call reads the list as it is. Names are compared without regard to case.
class UserList
{
public:
    struct Deletion
    {
        bool deleted = false; ///< whether the user is off the list now
        QString error;        ///< the system's description of what could not be removed, mostly empty
    };

    /// All names, in the order in which the users were added.
    QStringList Names() const;
    bool UserExists(const QString &name) const;
    /// Whether no account can have this name: it is empty, holds a space, a control character or one of
    /// ? * ; : / \ < > ", or cannot be a folder of its own (dots only, device names, more than 255 bytes).
    bool IsInvalidName(const QString &name) const;

    /// Puts the name at the end of the list and makes the user's folder. False, and nothing changed, when
    /// the user exists, the name is invalid or the list cannot be written.
    bool AddUser(const QString &name);
    /// Takes the user off the list and deletes the user's files and folder, never anything elsewhere.
    Deletion DeleteUser(const QString &name);

    /// Makes the folder of a user where it is missing. False when there is none afterwards.
    bool MakeFolder(const QString &name);
};
