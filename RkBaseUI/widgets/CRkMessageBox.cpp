// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "widgets/CRkMessageBox.h"

#include "widgets/ScreenPicture.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QScreen>

CRkMessageBox::CRkMessageBox(QWidget* parent)
    : CRkBaseDialog(parent)
    , m_icon(new QLabel)
    , m_text(new QLabel)
{
    m_icon->setObjectName(QStringLiteral("Icon"));
    m_text->setObjectName(QStringLiteral("TextMsg"));
    m_text->setAlignment(Qt::AlignCenter);
    m_text->setWordWrap(true);

    auto* layout = new QHBoxLayout;
    layout->setObjectName(QStringLiteral("horizontalLayout"));
    layout->setContentsMargins(20, 20, 20, 9);
    layout->setSpacing(2);
    layout->addWidget(m_icon);
    layout->addWidget(m_text);
    AddLayout(layout);

    SetIcon(QStringLiteral(":/images/Normal/corvellogo42.png"));
}

CRkMessageBox::~CRkMessageBox() = default;

void CRkMessageBox::SetIcon(const QString& path)
{
    const QPixmap picture = screenPicture(path);
    m_icon->setFixedSize(picture.size() / picture.devicePixelRatio());
    m_icon->setPixmap(picture);
}

void CRkMessageBox::SetMsgText(const QString& text)
{
    m_text->setText(text);
    m_text->setWordWrap(true);
    // A text without end leaves the buttons on the screen.
    m_text->setMaximumSize(screen()->availableSize() * 2 / 3);
    adjustSize();
}

void CRkMessageBox::SetOpenExteranlLinks(bool open)
{
    m_text->setOpenExternalLinks(open);
    m_text->setTextInteractionFlags(Qt::LinksAccessibleByMouse);
}

void CRkMessageBox::closeEvent(QCloseEvent* event)
{
    m_isClosed = true;
    hide();
    event->accept();
}
