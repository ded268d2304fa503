#pragma once

#include "foundation/OvixSvgKey.h"

#include <QLabel>

/// The icon widget of the whole library: one or more SVG documents, drawn at the widget's size and screen scale.
///
/// The user sees a picture, centred, that may be inverted while it is checked or under the pointer and is dimmed while
/// disabled, over a background in one of six colour schemes that may change on hover and when checked. Pictures come
/// from `OvixSvgRenderer` and are fetched while painting only; the label generates its own style sheet. All lengths are
/// logical pixels. Keyboard focus draws a ring; the focus policy is none until the application sets one.
///
/// A style sheet given from outside is replaced at the first paint, and at the next one after a styling setter or
/// `setChecked`.
class VELMO_GUI_EXPORT OvixSvgLabel : public QLabel
{
    Q_OBJECT
    // For forms; see the setters.
    Q_PROPERTY(QString filename READ firstFilename WRITE setFilename)
    Q_PROPERTY(ImageShape imageShape MEMBER m_imageShape WRITE setImageShape)
    Q_PROPERTY(ColorScheme colorScheme MEMBER m_colorScheme WRITE setColorScheme)
    Q_PROPERTY(int roundedBorder MEMBER m_roundedBorder WRITE setRoundedBorder)
    Q_PROPERTY(double opacity MEMBER m_opacity WRITE setOpacity)
    Q_PROPERTY(bool hoverVisible MEMBER m_hoverVisible WRITE setHoverVisible)
    Q_PROPERTY(bool inverted MEMBER m_inverted WRITE setInverted)
    Q_PROPERTY(bool invertOnCheck MEMBER m_invertOnCheck WRITE setInvertOnCheck)
    Q_PROPERTY(bool invertOnHover MEMBER m_invertOnHover WRITE setInvertOnHover)
    Q_PROPERTY(bool checked READ isChecked WRITE setChecked)

public:
    /// How the picture is fitted into the widget.
    enum ImageShape : int {
        Square = 0, ///< the largest centred square
        Stretch = 1 ///< the whole widget
    };
    Q_ENUM(ImageShape)

    /// The colours of the generated style sheet. Any other value leaves them empty.
    enum ColorScheme : int {
        Black = 0, ///< deepest background at rest and checked, lightened under the pointer
        Charcoal = 1, ///< main background, dark grey under the pointer and checked
        CharcoalBlue = 2, ///< main background, accent under the pointer and checked
        Grey = 3, ///< dark grey, raised under the pointer, near white checked
        White = 4, ///< near white in every state
        GraphiteBlue = 5 ///< raised, lightened under the pointer, translucent accent checked
    };
    Q_ENUM(ColorScheme)

    /// A label without a picture, unchecked.
    explicit OvixSvgLabel(QWidget *parent = nullptr);
    ~OvixSvgLabel() override;

    /// The file of the first layer; the other layers stay. An empty name removes all layers, and the last picture stays
    /// on screen.
    void setFilename(const QString &filename);
    /// One layer a file, in painting order. Shows at the next paint, which it does not ask for. An empty list removes
    /// all layers.
    void setFilenames(const QList<QString> &filenames);
    /// The same for a second picture that replaces pixel inversion. It is not dimmed while disabled.
    void setFilenameInverted(const QString &filename);
    /// As `setFilenames`, for the second picture.
    void setFilenamesInverted(const QList<QString> &filenames);
    /// Whether there is a layer; the second picture does not count.
    bool hasFilenames() const;
    /// The file of the first layer, empty without layers.
    QString firstFilename() const;

    /// Draws only these elements of the document at @p layer; none means the whole document. The layer has to exist,
    /// but layer 0 is made when missing; any other index outside the list is a programming error: it stops a debug
    /// build and does nothing in a release build. The inverted files are not touched.
    void setRenderList(const QList<QString> &elementIds, int layer);

    /// Empty border inside the picture, in which nothing is drawn; 0 by default.
    void setMargins(int margin);
    /// The same, each side by itself. For both pictures.
    void setMargins(int left, int top, int right, int bottom);
    /// Padding of the style sheet, 0 by default.
    void setPadding(int padding);
    /// The same, each side by itself. With 0 on all sides the sheet has no padding.
    void setPadding(int left, int top, int right, int bottom);
    /// Margins of the style sheet, outside the background; 0 by default.
    void setBackgroundMargins(int margin);
    /// The same, each side by itself.
    void setBackgroundMargins(int left, int top, int right, int bottom);
    /// The same, as margins.
    void setBackgroundMargins(const QMargins &margins);
    /// Radius of the background's corners; 0 or less for square ones.
    void setRoundedBorder(int radius);

    /// `GraphiteBlue` by default.
    void setColorScheme(ColorScheme scheme);
    /// Whether the scheme's background shows while unchecked (default no) and while checked (default yes).
    void setBackgroundVisible(bool normal, bool checked);
    /// Whether the scheme's hover background shows (default no).
    void setHoverVisible(bool visible);

    /// The picture's inversion when neither check nor hover turns it round.
    void setInverted(bool inverted);
    /// 0.0 to 1.0, 1.0 by default; a disabled label shows a fifth of it.
    void setOpacity(double opacity);
    /// Whether being checked turns the inversion round (default yes).
    void setInvertOnCheck(bool invert);
    /// Whether the pointer turns the inversion round (default no).
    void setInvertOnHover(bool invert);
    /// `Square` by default. Shows at the next paint, which it does not ask for.
    void setImageShape(ImageShape shape);

    /// Shows the checked look or the normal one. Emits nothing; assistive tools are told of a change.
    void setChecked(bool checked);
    /// Off at first.
    bool isChecked() const;

    /// Brings picture and style sheet up to date. Every paint does so; owners may want it earlier.
    void paintEventUpdate();

    /// The margins, padding and background margins alone: a picture can always get smaller again.
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    void markSheetsDirty();
    void updateKeys();
    void updateSizes();
    void updatePicture(const QPaintEvent *paint);
    void updateSheet();
    bool isInvertedNow() const;
    bool showsWholeChange(const QPaintEvent *paint) const;
    void repaintIfHoverShows();

    OvixSvgKey m_normalKey;
    OvixSvgKey m_invertedKey;
    size_t m_lastHash = 0;
    QMargins m_padding;
    QMargins m_backgroundMargins;
    QString m_normalSheet;
    QString m_checkedSheet;
    double m_opacity = 1.0;
    ImageShape m_imageShape = Square;
    ColorScheme m_colorScheme = GraphiteBlue;
    int m_roundedBorder = 0;
    bool m_checked = false;
    bool m_inverted = false;
    bool m_backgroundVisible = false;
    bool m_checkedBackgroundVisible = true;
    bool m_hovered = false;
    bool m_hoverVisible = false;
    bool m_sheetsDirty = true;
    bool m_sheetPending = false;
    bool m_invertOnCheck = true;
    bool m_invertOnHover = false;
};
