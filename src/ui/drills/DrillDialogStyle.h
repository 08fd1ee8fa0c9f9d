#pragma once

class QGroupBox;
class QListWidget;

/// The looks of the drills' dialogs where the skin has no picture: lists, and option buttons in a frame.
void StyleDialogList(QListWidget *list);
void StyleDialogGroup(QGroupBox *group);
