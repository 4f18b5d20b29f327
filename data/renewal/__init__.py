# SPDX-FileCopyrightText: 2026 The RkBaseUI developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""How the city data is renewed; ../README.md tells the story, ../renew runs it."""
