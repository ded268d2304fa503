#pragma once

#include "scenes/Scene.h"

#include <QCoreApplication>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

/// Writes an edited scene into the document that it was read from. What is edited are its tags, crop, crowd and bake,
/// and the facts for the list of scenes; a scene without a length gets one. All else is kept: what nobody here knows,
/// comments, the order of things. What reads as before stays as it was written.
///
/// The result is UTF-8 and reads as the same scene. Safe in any thread; one object writes one document.
class SceneContentWriter
{
    Q_DECLARE_TR_FUNCTIONS(SceneContentWriter)

public:
    /// @p scene has to live longer.
    explicit SceneContentWriter(const Scene &scene);

    /// False when the scene's document is no scene; `problem` has the words for the user.
    bool write();
    QByteArray document() const;
    QString problem() const;

private:
    /// Attributes in the file's order.
    class Attributes;

    void copyToken();
    void copyStart();
    void copyEnd();
    void edit(Attributes *attributes);
    void editMetadata(Attributes *attributes) const;
    void editTimeline(Attributes *attributes) const;
    void editCrop(Attributes *attributes) const;
    void editBake(Attributes *attributes) const;
    void editCrowd(Attributes *attributes) const;
    /// Whether the scene still has the tag.
    bool editTag(Attributes *attributes);
    void editMover(Attributes *attributes, const QList<SceneMover> &movers, qsizetype index) const;

    void addTags();
    void addShares();
    void addMissing();
    void addElement(const QString &name, int depth, const Attributes &attributes);
    void addCrop(int depth);
    void startElement(const QString &name, const Attributes &attributes);
    void endElement();
    void writeSpace();
    void writeText(const QString &text);

    const Scene &m_scene;
    /// Whether a tag is assigned when the file does not tell.
    QList<SceneTag> m_untoldTags;
    QByteArray m_document;
    QString m_problem;
    QXmlStreamReader m_in;
    QXmlStreamWriter m_out;
    /// How many elements are open.
    int m_depth = 0;
    /// Of the element whose content is nobody else's; 0 for none.
    int m_closedDepth = 0;
    bool m_isInCrowd = false;
    /// White space that has not been written: that in front of what is left out is left out too.
    QString m_space;
    bool m_needsSpace = false;
    QSet<QString> m_seen;
    qsizetype m_nextTag = 0;
    qsizetype m_nextPerson = 0;
    qsizetype m_nextVehicle = 0;
};
