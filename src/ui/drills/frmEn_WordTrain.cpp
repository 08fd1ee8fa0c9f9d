#include "ui/drills/frmEn_WordTrain.h"

#include "core/drills/DictionaryCatalogue.h"
#include "core/drills/clsEn_IDict.h"
#include "ui/drills/DlgEn_WordLesson.h"
#include "ui/drills/DlgEn_WordTrainSetting.h"
#include "ui/widgets/ExplanationPanel.h"

#include <QPointer>

using namespace Qt::Literals::StringLiterals;

namespace {

DrillFacts WordFacts()
{
    return {u"frmEn_WordTrain"_s, u"Typing Course \\ Word Drill"_s, 2, 2, 232, 299};
}

constexpr LineDrillPlaces WordPlaces{
    {{52, 90, 666, 40}, {52, 130, 666, 40}, {34, 279}, 1, 0},
    {{70, 120, 850, 40}, {70, 170, 850, 40}, {46, 356}, 1, 0},
};

} // namespace

frmEn_WordTrain::frmEn_WordTrain(Navigator &navigator, QWidget *owner)
    : LineDrill(WordFacts(), WordPlaces, navigator, owner)
    , picExplanation(new ExplanationPanel(this))
{
}

frmEn_WordTrain::~frmEn_WordTrain() = default;

void frmEn_WordTrain::InitLayout()
{
    LineDrill::InitLayout();
    const QRect place = Layout().Pick(QRect(52, 194, 534, 25), QRect(66, 250, 695, 30));
    picExplanation->setGeometry(place.translated(Layout().origin));
    picExplanation->SetTextSize(Layout().Pick(12, 14));
}

bool frmEn_WordTrain::InitDictionary(const QString &path, const QString &file)
{
    // Beside the old one, which can be typed on when this one cannot be loaded.
    auto dictionary = std::make_unique<clsEn_IDict>();
    if (!dictionary->InitDictionary(path, file))
        return false;
    Session().SetItems(dictionary->GetWordAmount(),
                       [words = dictionary.get()](int index) { return words->GetWord(index); });
    m_clsDict = std::move(dictionary);
    return true;
}

/// Takes over what belongs to the dictionary that was just loaded.
void frmEn_WordTrain::TakeDictionary(const QString &path, const QString &file, const QString &name)
{
    m_place.dictionaryPath = path;
    m_place.dictionaryFile = file;
    m_place.dictionaryName = name;
    ShowLessonTitle(u"Typing Course \\ Word Drill -- "_s + name);
    m_explanationAllowed = path == DictionaryCatalogue::ExplainedPath();
    m_place.showExplanation = m_place.showExplanation && m_explanationAllowed;
    m_explained.reset();
    picExplanation->Clear();
}

void frmEn_WordTrain::LoadTrainData()
{
    m_place = LoadWordTrainPlace();
    SetSoundMode(m_place.soundMode);
    const bool loaded = InitDictionary(m_place.dictionaryPath, m_place.dictionaryFile);
    Session().BeginAt(m_place.wordIndex);
    if (!loaded) {
        ReportLoadFailure(u"Thesaurus data initialize failure\nPlease choose other file."_s);
        return;
    }
    Session().CountFrom(m_place.wordIndex);
    TakeDictionary(m_place.dictionaryPath, m_place.dictionaryFile, m_place.dictionaryName);
    UpdateStatus(true);
    ShowLine();
}

void frmEn_WordTrain::SelectLesson()
{
    DlgEn_WordLesson dialog(this);
    const QPointer<frmEn_WordTrain> self(this);
    dialog.exec();
    if (!self || dialog.ReturnValue() != DialogAnswer::Confirmed)
        return;
    if (!InitDictionary(dialog.DictionaryPath(), dialog.DictionaryFileName())) {
        ReportLoadFailure(u"Thesaurus data initialization failure\nPlease choose other file."_s);
        return;
    }
    TakeDictionary(dialog.DictionaryPath(), dialog.DictionaryFileName(), dialog.DictionaryName());
    RestartLesson();
}

void frmEn_WordTrain::ChangeSettings()
{
    DlgEn_WordTrainSetting dialog(this);
    dialog.SetSoundEffect(SoundMode());
    dialog.SetShowExplanation(m_place.showExplanation ? 1 : 0, m_explanationAllowed);
    const QPointer<frmEn_WordTrain> self(this);
    dialog.exec();
    if (!self || dialog.ReturnValue() != DialogAnswer::Confirmed)
        return;
    SetSoundMode(dialog.SoundEffect());
    m_place.showExplanation = m_explanationAllowed && dialog.ShowExplanation() != 0;
    OnPlaceChanged();
}

void frmEn_WordTrain::OnPlaceChanged()
{
    const auto word = m_place.showExplanation ? std::optional(Session().CurrentItem()) : std::nullopt;
    if (word == m_explained)
        return;
    m_explained = word;
    if (word)
        ShowExplanation(*word);
    else
        picExplanation->Clear();
}

void frmEn_WordTrain::ShowExplanation(int index)
{
    picExplanation->SetTexts(m_clsDict->GetWord(index), m_clsDict->GetPhonetic_Symbol(index),
                             m_clsDict->GetExplanation(index));
}

QString frmEn_WordTrain::CompletionQuestion() const
{
    return u"You have been completed all the words in"_s + m_place.dictionaryName +
           u".\nContinued to practice other thesaurus?"_s;
}

QString frmEn_WordTrain::InputMethodHint(const QString &name) const
{
    return u"Current input method:"_s + name;
}

void frmEn_WordTrain::SaveTrainData()
{
    m_place.wordIndex = Session().CurrentItem();
    m_place.soundMode = SoundMode();
    StoreWordTrainPlace(m_place);
}
