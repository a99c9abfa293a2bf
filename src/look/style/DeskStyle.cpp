#include "look/style/DeskStyle.h"

#include "look/style/DeskPaint.h"
#include "look/style/Icons.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSlider>
#include <QTabBar>
#include <QTableView>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

constexpr int kCheckSide = 18;
constexpr int kFieldPadding = 8;
constexpr int kArrowWidth = 28;
constexpr int kGroupPadding = 16;

int LineHeight(const QStyleOption* option)
{
    return option ? option->fontMetrics.height() : 0;
}

int ControlHeight(const QStyleOption* option)
{
    return std::max(kControlHeight, LineHeight(option) + 14);
}

int GroupTitleHeight(const QStyleOptionGroupBox& option)
{
    const bool titled = !option.text.isEmpty() || option.subControls.testFlag(QStyle::SC_GroupBoxCheckBox);
    return titled ? std::max(20, option.fontMetrics.height()) + 8 : 0;
}

bool IsFaulty(const QWidget* widget)
{
    return widget && widget->property("faulty").toBool();
}

bool IsTextView(const QWidget* widget)
{
    return qobject_cast<const QTextEdit*>(widget) || qobject_cast<const QPlainTextEdit*>(widget);
}

} // namespace

DeskStyle::DeskStyle()
    : QProxyStyle(u"Fusion"_s)
{
}

void DeskStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    if (qobject_cast<QAbstractButton*>(widget) || qobject_cast<QComboBox*>(widget) ||
        qobject_cast<QAbstractSpinBox*>(widget) || qobject_cast<QLineEdit*>(widget) || qobject_cast<QSlider*>(widget) ||
        qobject_cast<QTabBar*>(widget) || qobject_cast<QHeaderView*>(widget))
        widget->setAttribute(Qt::WA_Hover);
    if (qobject_cast<QPushButton*>(widget) || qobject_cast<QToolButton*>(widget))
        widget->installEventFilter(this);
    if (auto* area = qobject_cast<QAbstractScrollArea*>(widget)) {
        // The frame paints the rounded ground; the viewport lets it through.
        area->viewport()->setAutoFillBackground(area->inherits("QComboBoxListView"));
        auto* scroller = qobject_cast<QScrollArea*>(widget);
        if (scroller) {
            scroller->setFrameShape(QFrame::NoFrame);
            if (scroller->widget())
                scroller->widget()->setAutoFillBackground(false);
        }
    }
    // The sheet's style sizes spin boxes without asking this one.
    if (auto* spin = qobject_cast<QAbstractSpinBox*>(widget); spin && spin->hasFrame())
        spin->setMinimumHeight(
            std::max(spin->minimumHeight(), std::max(kControlHeight, spin->fontMetrics().height() + 14)));
    if (auto* header = qobject_cast<QHeaderView*>(widget))
        header->setFont(DeskFont(0.92, true));
}

bool DeskStyle::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto* press = static_cast<QKeyEvent*>(event);
        const bool enters = press->key() == Qt::Key_Return || press->key() == Qt::Key_Enter;
        if (enters && !press->isAutoRepeat()) {
            static_cast<QAbstractButton*>(watched)->click();
            return true;
        }
    }
    return QProxyStyle::eventFilter(watched, event);
}

int DeskStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_ButtonMargin:
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return kCheckSide;
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return 10;
    case PM_DefaultFrameWidth:
        if (IsTextView(widget))
            return 4;
        return 1;
    case PM_FocusFrameHMargin:
        // Distance of a cell's text from the cell's edge, less one.
        return qobject_cast<const QTableView*>(widget) ? 11 : 5;
    case PM_HeaderMargin:
        return 12;
    case PM_HeaderMarkSize:
        return 12;
    case PM_SmallIconSize:
    case PM_ButtonIconSize:
    case PM_TabBarIconSize:
    case PM_ListViewIconSize:
        return kIconSize;
    case PM_ToolBarIconSize:
        return 20;
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
        return 8;
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
        return qobject_cast<const QDialog*>(widget) ? 20 : 0;
    case PM_SliderThickness:
    case PM_SliderControlThickness:
    case PM_SliderLength:
        return 20;
    case PM_TreeViewIndentation:
        return 20;
    case PM_MenuButtonIndicator:
        return 16;
    case PM_TabBarTabHSpace:
        return 28;
    case PM_TabBarTabVSpace:
        return 16;
    case PM_TabBarTabShiftVertical:
    case PM_TabBarBaseOverlap:
        return 0;
    case PM_SplitterWidth:
        return 8;
    case PM_ToolTipLabelFrameWidth:
        return 1;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int DeskStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* result) const
{
    switch (hint) {
    case SH_ComboBox_Popup:
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
    case SH_ItemView_ShowDecorationSelected:
    case SH_Table_AlwaysDrawLeftTopGridLines:
        return hint == SH_ItemView_ShowDecorationSelected;
    case SH_ItemView_ChangeHighlightOnFocus:
        return 0;
    case SH_Table_GridLineColor:
        return static_cast<int>(Token("line"_L1).rgba());
    case SH_ToolTipLabel_Opacity:
        return 255;
    case SH_Slider_AbsoluteSetButtons:
        return Qt::LeftButton;
    case SH_UnderlineShortcut:
        return 1;
    default:
        return QProxyStyle::styleHint(hint, option, widget, result);
    }
}

QSize DeskStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const
{
    switch (type) {
    case CT_PushButton:
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
            int width = button->fontMetrics.size(Qt::TextShowMnemonic, button->text).width();
            if (!button->icon.isNull())
                width += button->iconSize.width() + (button->text.isEmpty() ? 0 : 8);
            if (button->features.testFlag(QStyleOptionButton::HasMenu))
                width += 20;
            const bool quiet = widget && widget->property("kind").toString() == "quiet"_L1;
            return {button->text.isEmpty() ? std::max(width + 16, kControlHeight)
                    : quiet                ? width + 24
                                           : std::max(width + 32, 80),
                    ControlHeight(option)};
        }
        break;
    case CT_LineEdit:
        return {size.width() + 2 * kFieldPadding, ControlHeight(option)};
    case CT_ComboBox:
        return {size.width() + kFieldPadding + 4 + kArrowWidth, ControlHeight(option)};
    case CT_SpinBox:
        return {size.width() + kFieldPadding + kArrowWidth, ControlHeight(option)};
    case CT_ToolButton:
        return {size.width() + 12, std::max(size.height() + 12, kControlHeight - 2)};
    case CT_HeaderSection: {
        const QSize base = QProxyStyle::sizeFromContents(type, option, size, widget);
        return {base.width(), std::max(base.height(), TableRowHeight())};
    }
    case CT_ItemViewItem: {
        const QSize base = QProxyStyle::sizeFromContents(type, option, size, widget);
        return {base.width(), std::max(base.height(), TableRowHeight() - 4)};
    }
    case CT_ProgressBar:
        return {size.width(), std::max(LineHeight(option), 8)};
    case CT_GroupBox:
        return size;
    case CT_CheckBox:
    case CT_RadioButton:
        // Room for the ring round the label.
        return QProxyStyle::sizeFromContents(type, option, size, widget) + QSize(6, 2);

    default:
        break;
    }
    return QProxyStyle::sizeFromContents(type, option, size, widget);
}

QRect DeskStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    switch (element) {
    case SE_LineEditContents:
        if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option); frame && frame->lineWidth > 0) {
            // An icon in front brings its own distance.
            const int leading = widget && widget->property("leadingIcon").toBool() ? 2 : kFieldPadding;
            return visualRect(option->direction, option->rect, option->rect.adjusted(leading, 1, -kFieldPadding, -1));
        }

        return option->rect;
    case SE_ProgressBarGroove:
    case SE_ProgressBarContents:
    case SE_ProgressBarLabel:
        return option->rect;
    case SE_HeaderLabel: {
        const int margin = pixelMetric(PM_HeaderMargin, option, widget);
        return option->rect.adjusted(margin, 0, -margin, 0);
    }
    case SE_TabWidgetTabContents:
        return QProxyStyle::subElementRect(SE_TabWidgetTabPane, option, widget).adjusted(0, 12, 0, 0);
    case SE_CheckBoxFocusRect:
    case SE_RadioButtonFocusRect:
        return option->rect;
    default:
        return QProxyStyle::subElementRect(element, option, widget);
    }
}

QRect DeskStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                const QWidget* widget) const
{
    const QRect rect = option->rect;
    const auto visual = [option](const QRect& logical) { return visualRect(option->direction, option->rect, logical); };
    if (control == CC_ComboBox) {
        const QRect arrow(rect.right() - kArrowWidth + 1, rect.top(), kArrowWidth, rect.height());
        switch (part) {
        case SC_ComboBoxArrow:
            return visual(arrow);
        case SC_ComboBoxEditField:
            return visual(QRect(QPoint(rect.left() + kFieldPadding + 2, rect.top() + 1),
                                QPoint(arrow.left() - 1, rect.bottom() - 1)));
        case SC_ComboBoxListBoxPopup:
            return rect.adjusted(0, 0, 0, 4);
        default:
            return rect;
        }
    }
    if (control == CC_SpinBox) {
        const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option);
        const int width = spin && spin->buttonSymbols == QAbstractSpinBox::NoButtons ? 0 : kArrowWidth - 4;
        const int half = rect.height() / 2;
        switch (part) {
        case SC_SpinBoxUp:
            return visual(QRect(rect.right() - width + 1, rect.top(), width, half));
        case SC_SpinBoxDown:
            return visual(QRect(rect.right() - width + 1, rect.top() + half, width, rect.height() - half));
        case SC_SpinBoxEditField:
            return visual(rect.adjusted(kFieldPadding, 1, -width, -1));
        default:
            return rect;
        }
    }
    if (control == CC_GroupBox) {
        const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
        if (!group)
            return rect;
        const int title = GroupTitleHeight(*group);
        const int pad = group->features.testFlag(QStyleOptionFrame::Flat) ? 0 : kGroupPadding;
        const bool checkable = group->subControls.testFlag(SC_GroupBoxCheckBox);
        const int line = std::max(20, title - 8);
        switch (part) {
        case SC_GroupBoxCheckBox:
            return visual(QRect(rect.left() + pad, rect.top() + pad + (line - kCheckSide) / 2, kCheckSide, kCheckSide));
        case SC_GroupBoxLabel:
            return visual(QRect(rect.left() + pad + (checkable ? kCheckSide + 8 : 0), rect.top() + pad,
                                rect.width() - 2 * pad - (checkable ? kCheckSide + 8 : 0), line));
        case SC_GroupBoxContents:
            return rect.adjusted(pad, pad + (title ? title + 4 : 0), -pad, -pad);
        default:
            return rect;
        }
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

void DeskStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const
{
    switch (element) {
    case PE_PanelButtonCommand:
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option))
            return PaintButton(*button, painter, widget);
        break;
    case PE_PanelLineEdit:
        if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option); frame && frame->lineWidth > 0)
            PaintField(*option, painter, option->state.testFlag(State_HasFocus), IsFaulty(widget));
        return;
    case PE_FrameLineEdit:
        return;
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        return PaintCheckBox(*option, painter);
    case PE_IndicatorRadioButton:
        return PaintRadioButton(*option, painter);
    case PE_FrameFocusRect: {
        const bool popup = widget && widget->window()->windowType() == Qt::Popup;
        if (popup)
            return; // the row itself shows where one is
        if (qobject_cast<const QAbstractButton*>(widget))
            return PaintFocusRing(painter, QRectF(option->rect).adjusted(-5, -1, 5, 1), 4);
        const bool cell = option->state.testFlag(State_Item) || qobject_cast<const QAbstractItemView*>(widget);
        if (!cell || WalkedByKeyboard(widget))
            PaintFocusRing(painter, QRectF(option->rect).adjusted(cell ? 1 : 0, cell ? 1 : 0, cell ? -1 : 0, -1), 4);
        return;
    }
    case PE_Frame:
    case PE_FrameTabWidget:
        if (element == PE_FrameTabWidget) {
            painter->fillRect(QRect(option->rect.left(), option->rect.top() - 1, option->rect.width(), 1),
                              Token("line"_L1));
            return;
        }
        if (qobject_cast<const QAbstractScrollArea*>(widget)) {
            const bool view = qobject_cast<const QAbstractItemView*>(widget);
            const bool popup = widget->window()->windowType() == Qt::Popup;
            const bool text = IsTextView(widget) && widget->hasFocus();
            const bool ring = text || (view && !popup && widget->hasFocus() && WalkedByKeyboard(widget));
            PaintBox(painter, option->rect, popup ? 0 : (view ? kCardRadius : kControlRadius),
                     Token(IsTextView(widget) ? "field"_L1 : "surface"_L1), Token(ring ? "accent"_L1 : "line"_L1),
                     text ? 2 : 1);
            return;
        }
        PaintBox(painter, option->rect, kControlRadius, {}, Token("line"_L1));
        return;
    case PE_FrameMenu:
        return PaintBox(painter, option->rect, 0, {}, Token("edge"_L1));
    case PE_PanelItemViewRow:
        if (const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option))
            return PaintViewRow(*item, painter, widget);
        break;
    case PE_PanelItemViewItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option))
            return PaintViewItem(*item, painter, widget);
        break;
    case PE_IndicatorBranch:
        return PaintBranch(*option, painter);
    case PE_IndicatorHeaderArrow:
        return; // the label draws it right behind its text
    case PE_IndicatorArrowDown:
    case PE_IndicatorArrowUp:
    case PE_IndicatorArrowLeft:
    case PE_IndicatorArrowRight: {
        QLatin1StringView name = "chevron-down"_L1;
        if (element == PE_IndicatorArrowUp)
            name = "chevron-up"_L1;
        else if (element == PE_IndicatorArrowLeft)
            name = "previous"_L1;
        else if (element == PE_IndicatorArrowRight)
            name = "following"_L1;
        Icon(name, "muted"_L1)
            .paint(painter, option->rect, Qt::AlignCenter,
                   option->state.testFlag(State_Enabled) ? QIcon::Normal : QIcon::Disabled);
        return;
    }
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void DeskStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const
{
    switch (element) {
    case CE_PushButtonBevel:
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option))
            return PaintButton(*button, painter, widget);
        break;
    case CE_PushButtonLabel:
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option))
            return PaintButtonLabel(*button, painter, widget);
        break;
    case CE_PushButton:
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
            PaintButton(*button, painter, widget);
            return PaintButtonLabel(*button, painter, widget);
        }
        break;
    case CE_HeaderSection:
    case CE_HeaderEmptyArea:
        return PaintHeaderSection(*option, painter, widget);
    case CE_HeaderLabel:
        if (const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option))
            return PaintHeaderLabel(*header, painter, widget);
        break;
    case CE_TabBarTabShape:
        if (const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option))
            return PaintTab(*tab, painter);
        break;
    case CE_TabBarTabLabel:
        if (const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option)) {
            QStyleOptionTab label(*tab);
            label.state.setFlag(State_HasFocus, false);
            if (!label.state.testFlag(State_Selected))
                label.palette.setColor(QPalette::Active, QPalette::WindowText, Token("muted"_L1));
            return QProxyStyle::drawControl(element, &label, painter, widget);
        }
        break;
    case CE_ProgressBarGroove:
    case CE_SizeGrip:
        return;
    case CE_ProgressBarContents:
        if (const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option))
            return PaintProgress(*bar, painter, widget);
        break;
    case CE_ProgressBarLabel:
        return;
    case CE_ShapedFrame:
        if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
            frame && (frame->frameShape == QFrame::HLine || frame->frameShape == QFrame::VLine)) {
            const QPoint centre = frame->rect.center();
            painter->fillRect(frame->frameShape == QFrame::HLine
                                  ? QRect(frame->rect.left(), centre.y(), frame->rect.width(), 1)
                                  : QRect(centre.x(), frame->rect.top(), 1, frame->rect.height()),
                              Token("line"_L1));
            return;
        }
        break;
    case CE_ComboBoxLabel:
        if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option))
            return PaintComboLabel(*combo, painter, subControlRect(CC_ComboBox, combo, SC_ComboBoxEditField, widget));
        break;
    default:
        break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void DeskStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                   const QWidget* widget) const
{
    switch (control) {
    case CC_ComboBox:
        if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option))
            return PaintComboBox(*combo, painter, subControlRect(control, option, SC_ComboBoxArrow, widget),
                                 IsFaulty(widget));
        break;
    case CC_SpinBox:
        if (const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option))
            return PaintSpinBox(*spin, painter, subControlRect(control, option, SC_SpinBoxUp, widget),
                                subControlRect(control, option, SC_SpinBoxDown, widget), IsFaulty(widget));
        break;
    case CC_Slider:
        if (const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option))
            return PaintSlider(*slider, painter, subControlRect(control, option, SC_SliderGroove, widget),
                               subControlRect(control, option, SC_SliderHandle, widget));
        break;
    case CC_ToolButton:
        if (const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option)) {
            PaintToolButton(*button, painter, widget);
            QStyleOptionToolButton label(*button);
            label.state.setFlag(State_Sunken, false);
            if (label.state.testFlag(State_On) && label.icon.name().startsWith("desk:"_L1))
                label.icon = AccentIcon(label.icon);
            drawControl(CE_ToolButtonLabel, &label, painter, widget);
            return;
        }
        break;
    case CC_GroupBox:
        if (const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option))
            return PaintGroupBox(*group, painter, subControlRect(control, option, SC_GroupBoxLabel, widget),
                                 subControlRect(control, option, SC_GroupBoxCheckBox, widget));
        break;
    default:
        break;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QIcon DeskStyle::standardIcon(StandardPixmap pixmap, const QStyleOption* option, const QWidget* widget) const
{
    switch (pixmap) {
    case SP_LineEditClearButton:
        return Icon("close"_L1, "muted"_L1);
    case SP_MessageBoxInformation:
        return Icon("info"_L1, "accent"_L1);
    case SP_MessageBoxQuestion:
        return Icon("question"_L1, "accent"_L1);
    case SP_MessageBoxWarning:
        return Icon("warning"_L1, "warning"_L1);
    case SP_MessageBoxCritical:
        return Icon("error"_L1, "bad"_L1);
    case SP_TitleBarCloseButton:
    case SP_DialogCloseButton:
        return Icon("close"_L1);
    default:
        return QProxyStyle::standardIcon(pixmap, option, widget);
    }
}
