#pragma once

#include "look/style/Theme.h"

#include <QPainter>
#include <QStyleOption>

class QWidget;

// The pieces that DeskStyle and the desk's own widgets are painted from. Lengths are device-independent pixels.

inline constexpr qreal kControlRadius = 6;
inline constexpr qreal kCardRadius = 9;
inline constexpr int kControlHeight = 32;

// A filled box with rounded corners and a border drawn inside `rect`; an invalid colour leaves that part out.
void PaintBox(QPainter* painter, const QRectF& rect, qreal radius, const QColor& fill, const QColor& border = {},
              qreal width = 1);
// The 2 px ring round what the keyboard is on.
void PaintFocusRing(QPainter* painter, const QRectF& rect, qreal radius);
// Whether a control shows the ring: it has the focus and the keyboard brought it there.
bool ShowsFocusRing(const QStyleOption& option);
// Whether the window was last walked by the keyboard rather than the mouse.
bool WalkedByKeyboard(const QWidget* widget);
// Fills `rect` as part of a larger rounded box (`box`), so that its corners stay free.
void FillWithin(QPainter* painter, const QRect& rect, const QRectF& box, qreal radius, const QColor& fill);

// The faces of controls (DeskControls.cpp).
void PaintButton(const QStyleOptionButton& option, QPainter* painter, const QWidget* widget);
void PaintButtonLabel(const QStyleOptionButton& option, QPainter* painter, const QWidget* widget);
void PaintField(const QStyleOption& option, QPainter* painter, bool focused, bool faulty = false);
void PaintCheckBox(const QStyleOption& option, QPainter* painter);
void PaintRadioButton(const QStyleOption& option, QPainter* painter);
void PaintComboBox(const QStyleOptionComboBox& option, QPainter* painter, const QRect& arrow, bool faulty);
void PaintComboLabel(const QStyleOptionComboBox& option, QPainter* painter, const QRect& field);
void PaintSpinBox(const QStyleOptionSpinBox& option, QPainter* painter, const QRect& up, const QRect& down,
                  bool faulty);
void PaintSlider(const QStyleOptionSlider& option, QPainter* painter, const QRect& groove, const QRect& handle);
void PaintToolButton(const QStyleOptionToolButton& option, QPainter* painter, const QWidget* widget);
// The same line icon in the accent colour, for what is switched on.
QIcon AccentIcon(const QIcon& icon);
void PaintGroupBox(const QStyleOptionGroupBox& option, QPainter* painter, const QRect& title, const QRect& check);
void PaintProgress(const QStyleOptionProgressBar& option, QPainter* painter, const QWidget* widget);

// The faces of views (DeskViews.cpp).
void PaintViewRow(const QStyleOptionViewItem& option, QPainter* painter, const QWidget* widget);
void PaintViewItem(const QStyleOptionViewItem& option, QPainter* painter, const QWidget* widget);
void PaintBranch(const QStyleOption& option, QPainter* painter);
void PaintHeaderSection(const QStyleOption& option, QPainter* painter, const QWidget* widget);
void PaintHeaderLabel(const QStyleOptionHeader& option, QPainter* painter, const QWidget* widget);
void PaintTab(const QStyleOptionTab& option, QPainter* painter);
