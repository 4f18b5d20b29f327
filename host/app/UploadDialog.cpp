// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/UploadDialog.h"

#include "app/PageStyle.h"
#include "app/UploadNames.h"
#include "app/UploadTreeModel.h"

#include <RkAlgorthm/RkAlgorthm.h>
#include <RkProjectDbOperator/CRkUpLoadObject.h>

#include <QHeaderView>
#include <QJsonDocument>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStyle>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

constexpr int steps = 1000; // Of the bar.

const char* const contentStyle = R"(
QLabel { color: rgb(38, 52, 78); font-size: 13px; }
QLabel#projectName { color: rgb(9, 2, 38); font-size: 17px; font-weight: 600; }
QLabel#summary { color: rgb(104, 120, 148); }
QLabel#status[tone="quiet"] { color: rgb(104, 120, 148); }
QLabel#status[tone="good"] { color: rgb(24, 128, 76); font-weight: 600; }
QLabel#status[tone="bad"] { color: rgb(196, 46, 46); font-weight: 600; }
QTreeView {
    background-color: white; alternate-background-color: rgb(247, 249, 252);
    border: 1px solid rgb(226, 232, 240); border-radius: 4px; font-size: 13px;
    color: rgb(38, 52, 78); outline: none;
    selection-background-color: rgb(222, 234, 252); selection-color: rgb(9, 2, 38);
}
QTreeView:focus { border-color: rgb(58, 136, 244); }
QTreeView::item { height: 28px; border: none; padding-left: 5px; padding-right: 8px; }
QTreeView::item:selected { background-color: rgb(222, 234, 252); color: rgb(9, 2, 38); }
QHeaderView::section {
    background-color: rgb(240, 243, 248); color: rgb(84, 100, 130); border: none;
    border-bottom: 1px solid rgb(226, 232, 240); padding: 7px 8px; font-size: 12px;
}
QProgressBar { background-color: rgb(232, 237, 246); border: none; border-radius: 3px; }
QProgressBar::chunk { background-color: rgb(58, 136, 244); border-radius: 3px; }
)";

QLabel* makeLabel(const char* name, const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

UploadDialog::UploadDialog(const QString& projectName, const QByteArray& document)
    : CRkBaseDialog(nullptr)
    , m_document(document)
{
    SetWindowTitle(tr("Upload project"));
    auto* content = new QWidget(this);
    content->setStyleSheet(QString::fromLatin1(contentStyle)
                           + QString::fromLatin1(PageStyle::scrollBar));
    auto* inner = new QVBoxLayout(content);
    inner->setContentsMargins(24, 20, 24, 18);
    inner->setSpacing(6);
    addHead(*inner, projectName);
    addTree(*inner);
    addFoot(*inner);
    auto* layout = new QVBoxLayout;
    layout->addWidget(content);
    AddLayout(layout);
    setTabOrder(m_tree, okButton());
    setTabOrder(okButton(), cancelButton());
    setState(m_tree->model()->rowCount() > 0 ? State::Ready : State::Empty);
}

UploadDialog::~UploadDialog() = default;

void UploadDialog::addHead(QVBoxLayout& layout, const QString& projectName)
{
    const QJsonObject project = QJsonDocument::fromJson(m_document).object();
    layout.addWidget(makeLabel("projectName", projectName, this));
    if (!project.isEmpty())
        layout.addWidget(
            makeLabel("summary", UploadNames::summary(project, m_document.size()), this));
    layout.addSpacing(8);
    m_tree = new QTreeView(this);
    m_tree->setModel(new UploadTreeModel(project, m_tree));
}

void UploadDialog::addTree(QVBoxLayout& layout)
{
    m_tree->setAccessibleName(tr("What is uploaded"));
    m_tree->setMinimumSize(620, 378);
    m_tree->setAlternatingRowColors(true);
    m_tree->setUniformRowHeights(true);
    m_tree->setIndentation(18);
    m_tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_tree->header()->setSectionsMovable(false);
    m_tree->header()->resizeSection(UploadTreeModel::NameColumn, 270);
    m_tree->setCurrentIndex(m_tree->model()->index(0, 0));
    layout.addWidget(m_tree, 1);
}

void UploadDialog::addFoot(QVBoxLayout& layout)
{
    layout.addSpacing(8);
    m_status = makeLabel("status", QString(), this);
    layout.addWidget(m_status);
    m_bar = new QProgressBar(this);
    m_bar->setAccessibleName(tr("Progress of the upload"));
    m_bar->setTextVisible(false);
    m_bar->setFixedHeight(6);
    QSizePolicy policy = m_bar->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_bar->setSizePolicy(policy);
    layout.addWidget(m_bar);
}

void UploadDialog::slotBtnAcceptClicked()
{
    m_bar->setRange(0, steps);
    m_bar->setValue(0);
    setState(State::Running);
    m_status->setText(tr("Uploading …"));
    m_upload = std::make_unique<CRkUpLoadObject>();
    connect(m_upload.get(), &CRkUpLoadObject::uploadProgress, this, &UploadDialog::showProgress);
    connect(m_upload.get(), &CRkUpLoadObject::upLoadFinished, this, &UploadDialog::takeAnswer);
    connect(m_upload.get(), &CRkUpLoadObject::NetWorkError, this, &UploadDialog::fail);
    connect(m_upload.get(), &CRkUpLoadObject::NoLogin, this, &UploadDialog::refuseUser);
    m_upload->SetUrl(GetServerIP() + "/project/upload");
    m_upload->setRawHeader("token", GetCurUserInfo().strToken.toLatin1());
    m_upload->setRawHeader("Content-Type", "application/json");
    m_upload->SetFilePathArray(m_document);
    m_upload->PostNetWorkReplyMessage();
}

void UploadDialog::showProgress(qint64 sent, qint64 total)
{
    if (total <= 0)
        return;
    setState(State::Running);
    if (sent >= total) {
        m_bar->setRange(0, 0); // Nobody knows how long the service takes.
        m_status->setText(tr("Sent. Waiting for the answer of the service …"));
        return;
    }
    m_bar->setRange(0, steps);
    m_bar->setValue(int(sent * steps / total));
    m_status->setText(
        tr("Uploading … %1 of %2").arg(UploadNames::sizeText(sent), UploadNames::sizeText(total)));
}

void UploadDialog::takeAnswer(const QByteArray& reply)
{
    const int status = QJsonDocument::fromJson(reply)[QLatin1String("status")].toInt(-1);
    setState(status == 0 || status == 1 ? State::Done : State::Failed);
}

void UploadDialog::fail()
{
    setState(State::Failed);
}

void UploadDialog::refuseUser()
{
    setState(State::NotLoggedIn);
}

void UploadDialog::setState(State state)
{
    if (m_state == state && state != State::Empty)
        return;
    m_state = state;
    const bool isOver =
        state == State::Done || state == State::Failed || state == State::NotLoggedIn;
    const bool isQuiet = state == State::Ready || state == State::Running;
    const char* tone = state == State::Done ? "good" : isQuiet ? "quiet" : "bad";
    m_status->setProperty("tone", QLatin1String(tone));
    m_status->style()->unpolish(m_status); // The style sheet looks at the tone.
    m_status->style()->polish(m_status);
    m_status->setText(stateText());
    m_bar->setVisible(state == State::Running);

    SetBtnOKText(isOver ? tr("Retry") : tr("Upload"));
    SetBtnCancelText(isOver ? tr("Close") : tr("Cancel"));
    SetBtnHidden(state == State::Done, false, false);
    const bool canSend = state != State::Empty && state != State::Running;
    okButton()->setEnabled(canSend);
    QPushButton* next = canSend && state != State::Done ? okButton() : cancelButton();
    next->setDefault(true);
    next->setFocus();
}

QString UploadDialog::stateText() const
{
    switch (m_state) {
    case State::Empty:
        return tr("Nothing can be read of this project.");
    case State::Ready:
        return tr("Goes to %1").arg(QString::fromUtf8(GetServerIP()));
    case State::Running:
        return {};
    case State::Done:
        return tr("The project has been uploaded.");
    case State::Failed:
        return tr("The upload failed: the service cannot be reached or did not take the project.");
    case State::NotLoggedIn:
        return tr("The upload failed: the service does not know the current user.");
    }
    return {};
}
