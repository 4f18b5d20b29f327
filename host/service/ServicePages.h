// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "service/ServiceStore.h"

/// The pages of the web service as HTML in UTF-8. Whatever was received is shown as text.
namespace ServicePages {

QByteArray applications(const QVector<LiftApplication>& applications);
QByteArray documents(const QVector<ProjectDocument>& documents);

} // namespace ServicePages
