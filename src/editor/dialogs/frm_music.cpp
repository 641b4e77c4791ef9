// Handles the music dialog's controls and file list; frm_music_layout.cpp places them.
#include "dialogs/frm_music.h"

#include "dialogs/music_list.h"
#include "editing/music_rules.h"
#include "widgets/control_names.h"
#include "widgets/empty_hint.h"
#include "widgets/faint_text.h"
#include "widgets/icons.h"
#include "widgets/play_button.h"
#include "widgets/prompts.h"
#include "widgets/shown_path.h"
#include "widgets/style/heading.h"
#include "widgets/usable_files.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHideEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include <algorithm>
#include <array>
#include <utility>

namespace tarvel {

namespace {

QString musicFilter() {
    QStringList patterns;
    for (const auto ending : musicEndings) {
        patterns << QLatin1Char('*') + qtText(ending);
    }
    return FrmMusic::tr("Music") + QLatin1Char('|') + patterns.join(QLatin1Char(' ')) +
           QLatin1Char('|') + FrmMusic::tr("All files") + QStringLiteral("|*");
}

QString timeText(qint64 milliseconds) {
    const qint64 seconds = milliseconds / 1000;
    return QStringLiteral("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0'));
}

void setCheckedQuietly(QAbstractButton& button, bool checked) {
    const QSignalBlocker quiet(button);
    button.setChecked(checked);
}

} // namespace

FrmMusic::FrmMusic(SkinDocument& document, Prompts& prompts, QWidget* parent,
                   std::unique_ptr<TrackPlayer> player)
    : SkinDialog(QStringLiteral("frmMusic"), QStringLiteral("  :: Audio Settings ::"), document,
                 prompts, parent)
    , caption_(new QLabel(QStringLiteral("BACKGROUND MUSIC"), this))
    , optYesMusic_(named(new QRadioButton(QStringLiteral("Use Background Music"), this),
                         QStringLiteral("optYesMusic")))
    , optNoMusic_(
          named(new QRadioButton(QStringLiteral("No Music"), this), QStringLiteral("optNoMusic")))
    , fraStuff_(named(new QFrame(this), QStringLiteral("fraStuff"), tr("Music settings")))
    , chkGlobal_(named(
          new QCheckBox(QStringLiteral("Use Global Music (from your xbox soundtracks)"), fraStuff_),
          QStringLiteral("chkGlobal")))
    , chkCustom_(named(new QCheckBox(QStringLiteral("Use Custom Music"), fraStuff_),
                       QStringLiteral("chkCustom")))
    , fraMusic_(named(new QFrame(fraStuff_), QStringLiteral("fraMusic"), tr("Custom music")))
    , musicInside_(new QWidget(fraMusic_))
    , chkRandom_(named(new QCheckBox(QStringLiteral("Play Music in Random Order"), fraStuff_),
                       QStringLiteral("chkRandom")))
    , cmdOK_(makeOk())
    , player_(std::move(player))
    , easing_(30, 0.2, this) { // a fifth of a pixel is near enough
    caption_->setFont(headingFont(caption_->font()));
    cmdOK_->setParent(this);
    buildMusic();
    connectControls();
}

void FrmMusic::buildMusic() {
    cmdAdd_ = named(new QPushButton(QStringLiteral("Add Files")), QStringLiteral("cmdAdd"));
    cmdAdd_->setIcon(icon(IconName::add));
    cmdPlay_ = new PlayButton; // which names itself
    cmdPlay_->setObjectName(QStringLiteral("cmdPlay"));
    lblPlaying_ = new QLabel;
    lblPlaying_->setObjectName(QStringLiteral("lblPlaying"));
    lblPlaying_->setTextFormat(Qt::PlainText);
    lblPlaying_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    lstMusic_ = named(new MusicList, QStringLiteral("lstMusic"), tr("Custom music files"));
    lstMusic_->setToolTip(tr("Delete or a right click removes a file from the list, Space or a "
                             "double click plays it.\nFiles can also be dropped here."));
    lstMusic_->setFixedHeight(150);
    new EmptyHint(*lstMusic_, tr("No music yet.\nAdd files, or drop them here.")); // NOLINT
    auto* grid = new QGridLayout(musicInside_);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(cmdAdd_, 0, 0);
    grid->addWidget(cmdPlay_, 0, 1);
    grid->addWidget(lblPlaying_, 0, 2);
    grid->addWidget(lstMusic_, 1, 0, 1, 3);
    grid->setColumnStretch(2, 1);
    const std::array<QWidget*, 9> order = {optYesMusic_, optNoMusic_, chkGlobal_,
                                           chkCustom_,   cmdAdd_,     cmdPlay_,
                                           lstMusic_,    chkRandom_,  cmdOK_};
    for (std::size_t i = 1; i < order.size(); ++i) {
        setTabOrder(order[i - 1], order[i]);
    }
}

void FrmMusic::connectControls() {
    connect(optYesMusic_, &QRadioButton::toggled, this, [this](bool yes) {
        editMusic([&](MusicSettings& music) { music.hasMusic = yes; });
        layOut(true);
    });
    connect(chkCustom_, &QCheckBox::toggled, this, [this](bool custom) {
        editMusic([&](MusicSettings& music) { music.customMusic = custom; });
        layOut(true);
    });
    connect(chkGlobal_, &QCheckBox::toggled, this, [this](bool global) {
        editMusic([&](MusicSettings& music) { music.playGlobal = global; });
    });
    connect(chkRandom_, &QCheckBox::toggled, this, [this](bool random) {
        editMusic([&](MusicSettings& music) { music.playRandom = random; });
    });
    connect(cmdAdd_, &QPushButton::clicked, this, &FrmMusic::cmdAdd_Click);
    connect(cmdPlay_, &QPushButton::clicked, this, &FrmMusic::playOrStop);
    connect(lstMusic_, &MusicList::playOrStopWanted, this, &FrmMusic::playOrStop);
    connect(lstMusic_, &MusicList::playWanted, this, &FrmMusic::playSelected);
    connect(lstMusic_, &MusicList::removeWanted, this, &FrmMusic::removeSelected);
    connect(lstMusic_, &MusicList::musicDropped, this, &FrmMusic::addFiles);
    connect(lstMusic_, &QListWidget::itemSelectionChanged, this, &FrmMusic::showPlaying);
    connect(player_.get(), &TrackPlayer::changed, this, &FrmMusic::showPlaying);
}

void FrmMusic::readDocument() {
    const MusicSettings& music = document().settings().music;
    {
        const QSignalBlocker quiet(optYesMusic_);
        (music.hasMusic ? optYesMusic_ : optNoMusic_)->setChecked(true);
    }
    setCheckedQuietly(*chkGlobal_, music.playGlobal);
    setCheckedQuietly(*chkCustom_, music.customMusic);
    setCheckedQuietly(*chkRandom_, music.playRandom);
    showList();
    measure();
    layOut(false);
    (music.hasMusic ? optYesMusic_ : optNoMusic_)->setFocus();
}

void FrmMusic::hideEvent(QHideEvent* event) {
    SkinDialog::hideEvent(event);
    if (!event->spontaneous()) {
        player_->stop();
    }
}

void FrmMusic::showList() {
    const MusicSettings& music = document().settings().music;
    const QSignalBlocker quiet(lstMusic_);
    lstMusic_->clear();
    for (std::size_t row = 0; row < music.rows.size(); ++row) {
        const std::string path = musicPath(music, static_cast<int>(row));
        auto* item = new QListWidgetItem(shownPath(path), lstMusic_); // NOLINT: owned by the list
        item->setData(Qt::UserRole, music.rows[row]);
        item->setToolTip(item->text());
        if (!FileExists(path)) {
            item->setForeground(faintText(lstMusic_->palette()));
            QFont italic = item->font();
            italic.setItalic(true);
            item->setFont(italic);
            item->setToolTip(tr("%1\nThis file cannot be found.").arg(item->text()));
        }
    }
    lstMusic_->setCurrentIndex({});
    showPlaying();
}

void FrmMusic::cmdAdd_Click() {
    addFiles(prompts().files(this, musicFilter(), true));
}

void FrmMusic::addFiles(QStringList files) {
    files.removeAll(QString());
    files = usableFiles(files, prompts(), this);
    if (files.isEmpty()) {
        return;
    }
    editMusic([&](MusicSettings& music) {
        for (const QString& file : std::as_const(files)) {
            addMusicFile(music, documentPath(hostPathOf(file)));
        }
    });
    showList();
    lstMusic_->setCurrentRow(lstMusic_->count() - 1);
}

void FrmMusic::removeSelected() {
    const auto selected = lstMusic_->selectedItems();
    if (selected.isEmpty()) {
        return;
    }
    if (player_->state().file == selected.front()->text()) {
        player_->stop();
    }
    const int row = lstMusic_->row(selected.front());
    editMusic([&](MusicSettings& music) { removeMusicRow(music, row); });
    showList();
    lstMusic_->setCurrentRow(std::min(row, lstMusic_->count() - 1));
}

void FrmMusic::playSelected() {
    const auto selected = lstMusic_->selectedItems();
    if (!selected.isEmpty()) {
        player_->play(selected.front()->text());
    }
}

void FrmMusic::playOrStop() {
    if (cmdPlay_->isPlaying()) {
        player_->stop();
    } else {
        playSelected();
    }
}

void FrmMusic::showPlaying() {
    const TrackPlayer::State& state = player_->state();
    const auto selected = lstMusic_->selectedItems();
    const bool other = !selected.isEmpty() && selected.front()->text() != state.file;
    cmdPlay_->setPlaying(state.playing && !other);
    cmdPlay_->setEnabled(state.playing || !selected.isEmpty());
    QString text = state.problem;
    if (state.playing && state.duration > 0) {
        text = tr("%1 of %2").arg(timeText(state.position), timeText(state.duration));
    }
    lblPlaying_->setText(text);
    lblPlaying_->setToolTip(state.file);
}

} // namespace tarvel
