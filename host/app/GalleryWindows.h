// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "app/Gallery.h"

/// Every window of the library and of the host, each in the states that look different. Needs
/// projects below the project root.
QVector<Gallery::Entry> galleryWindows();

/// Of these, the host's main window.
QVector<Gallery::Entry> galleryHost();

/// Of these, the project manager.
QVector<Gallery::Entry> galleryProjects();

/// Of these, the city picker.
QVector<Gallery::Entry> galleryCity();

/// Of these, the date picker and the filter bar.
QVector<Gallery::Entry> galleryDates();

/// Of these, the page of a project's blocks.
QVector<Gallery::Entry> galleryBlocks();

/// Of these, the project view with each of its messages. They come last, because one of them takes
/// a project file away.
QVector<Gallery::Entry> galleryMessages();

/// Of these, the dialogs and other windows with a frame of the library's own.
QVector<Gallery::Entry> galleryDialogs();

/// Of these, the light of a 3-D view.
QVector<Gallery::Entry> galleryLight();

/// Of these, the survey tools.
QVector<Gallery::Entry> galleryTools();

/// Of these, the host's main window while the survey tools work on its pages.
QVector<Gallery::Entry> gallerySurvey();

/// Of these, the host's main window with places that were found and outlines that were drawn.
QVector<Gallery::Entry> galleryService();

/// Of these, what is sent of an opened project to the web service.
QVector<Gallery::Entry> galleryUpload();

/// Of these, the page about the computer.
QVector<Gallery::Entry> gallerySystem();

/// Of these, sheets of controls in their states.
QVector<Gallery::Entry> galleryControls();

/// Of these, the dialogs that compute one thing from a few numbers.
QVector<Gallery::Entry> galleryCalculators();

/// Of these, all pictures of the library on both grounds on which they are shown.
QVector<Gallery::Entry> galleryPictures();

/// Of these, the application for lifting a no-fly zone and its upload.
QVector<Gallery::Entry> galleryNoFly();
