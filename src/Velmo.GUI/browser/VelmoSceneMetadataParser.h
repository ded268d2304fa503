#pragma once

#include "VelmoGuiExport.h"
#include "VelmoVersion.h"

#include <QString>

/// The facts about one scene that a list of scenes shows, read from the scene's file without loading the scene.
///
/// A scene file is an XML document with the root element "VelmoSerializer". A child "scenemetadata" of the root carries
/// the facts as attributes; everything else is skipped, however large and deep, at the speed of the XML reader.
/// Every attribute is optional. One that is missing or empty leaves its field as it was, and so does a file that cannot
/// be read: start from withDefaults(). Where the metadata element comes several times, the last value of each field
/// holds. What stood in front of the place where a broken file breaks is kept.
///
/// The element that follows the metadata element needs white space or a comment in between, which every file written by
/// the application has. Without it the start of that element is passed over and its content is read as if it stood in
/// the root: its end then counts as the root's, so that a further element makes the file invalid.
///
/// A value like any other: copy it, compare its fields, keep it in a list. It holds no file and no reader.
class VELMO_GUI_EXPORT VelmoSceneMetadataParser
{
public:
    /// How the reading of a file went, and what to tell the user about it.
    struct ReadResult
    {
        /// True for a well-formed scene file, with or without metadata.
        bool ok = false;
        /// Title and text of the warning for the user, translated. Both are empty when there is nothing to tell: after
        /// success, and for a missing file, a malformed one and one that is no scene.
        QString warningTitle;
        /// See `warningTitle`.
        QString warningText;
    };

    /// A parser whose fields hold what is listed for a scene that tells nothing about itself: counts "0", background
    /// "(Undetected)", the default version, empty texts. A parser made in any other way is empty throughout.
    static VelmoSceneMetadataParser withDefaults();

    /// Reads the file at @p path into the fields and shows the warning, if there is one; true for a scene file.
    ///
    /// For the GUI thread: it blocks while the file is read, and again until the user has closed the warning. A file
    /// that cannot be opened (no permission, a folder, a pipe, a device) is reported, and so is a device that fails
    /// behind a whole document; a missing file, a malformed or cut one and one with another root give false without a
    /// word.
    bool parse(const QString &path);

    /// The first half of parse(): reads the file at @p path into the fields and shows nothing. Safe in any thread, as
    /// long as no other one uses this object.
    ReadResult read(const QString &path);

    /// The second half of parse(): shows the warning of @p result in a message box without parent and returns when the
    /// user has closed it. Nothing happens when there is no warning. GUI thread only.
    static void report(const ReadResult &result);

    /// Shown as given; empty when unknown.
    QString bakeStatus;
    /// Counts are texts and are shown exactly as stored in the file, whatever they say.
    QString actorCount;
    /// The same for vehicles.
    QString vehicleCount;
    /// Length and frame rate of the scene in one text, for example "00:02:30 | 25"; empty when unknown.
    QString timeFramerate;
    /// Name of the scene's background.
    QString backgroundName;
    /// The release that saved the scene.
    VelmoVersion version;
};
