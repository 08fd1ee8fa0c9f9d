#pragma once

#include "Picture.h"

class Theme;

/// Each adds the pictures of one subject. The theme must outlive the list.
void AddBackground(PictureList &list, const Theme &theme);
void AddMainMenu(PictureList &list, const Theme &theme);
void AddMenuButtons(PictureList &list, const Theme &theme);
void AddTextButtons(PictureList &list, const Theme &theme);
void AddWindowButtons(PictureList &list, const Theme &theme);
void AddDialogFrame(PictureList &list, const Theme &theme);
void AddStatusIcons(PictureList &list, const Theme &theme);
void AddProgressBars(PictureList &list, const Theme &theme);
void AddTabStrips(PictureList &list, const Theme &theme);
void AddDrillPanels(PictureList &list, const Theme &theme);
void AddTestPanels(PictureList &list, const Theme &theme);
void AddArticlePanels(PictureList &list, const Theme &theme);
void AddTopList(PictureList &list, const Theme &theme);
void AddManagePages(PictureList &list, const Theme &theme);
void AddManageTabs(PictureList &list, const Theme &theme);
void AddKeyCaps(PictureList &list, const Theme &theme);
void AddKeyboards(PictureList &list, const Theme &theme);
void AddKeypads(PictureList &list, const Theme &theme);
void AddHands(PictureList &list, const Theme &theme);

/// The pictures that belong to the program itself, not to a skin.
PictureList MakeProgramPictures(const Theme &theme);
