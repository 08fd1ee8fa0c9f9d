#pragma once

#include <QString>

/// A program folder that several people of one machine use, each with rights of their own: what one of them
/// makes, the others must be able to read and to replace. Paths are native unless said otherwise.
namespace Public_Function {

/// Gives a file or folder that was just made to the group when the folder that it lies in hands its group on
/// (the set-group bit) and the group may write there, whatever the creation mask of its maker.
void ShareWithGroup(const QString &nativePath);

/// Makes a folder and those above it that are missing, each as ShareWithGroup says. `path` may be in the
/// product's form. True when the folder is there.
bool MakeFolder(const QString &path);

/// Where `target` is a link that nobody but this person and the administrator can have put there: makes it
/// the path that the link leads to, which need not exist, and `scratch` a file of its own name beside that. A
/// package keeps files that people change outside of a folder in which only programs belong. Any other link
/// is left alone: in a folder that others may write in, it could lead to a file that they must not change.
void FollowTrustedLink(QString &target, QString &scratch);

} // namespace Public_Function
