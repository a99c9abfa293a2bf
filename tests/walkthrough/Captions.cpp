#include "tests/walkthrough/Captions.h"

#include "look/widgets/ElidedLabel.h"
#include "look/widgets/NavRail.h"
#include "look/widgets/StatusLabel.h"
#include "look/widgets/StepStrip.h"

#include <QAbstractButton>
#include <QAbstractItemDelegate>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>
#include <QTableView>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kSmallestScreen(1280, 720);
constexpr int kRowsRead = 8; // of each table
constexpr int kSortArrow = 17;

bool IsCut(const QLabel& label)
{
    const int room = label.contentsRect().width();
    if (qobject_cast<const ElidedLabel*>(&label))
        return label.fontMetrics().horizontalAdvance(label.text()) > room;
    if (label.wordWrap())
        return label.heightForWidth(label.width()) > label.height() || label.minimumSizeHint().width() > label.width();
    return label.sizeHint().width() > label.width() || label.sizeHint().height() > label.height();
}

// The text of a placeholder, an eye or a magnifying glass leave it the rest of the field.
bool IsCut(const QLineEdit& field)
{
    constexpr int kSideIcon = 24;
    constexpr int kTextMargin = 4;
    QStyleOptionFrame option;
    option.initFrom(&field);
    option.lineWidth = field.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &field);
    const QRect room = field.style()->subElementRect(QStyle::SE_LineEditContents, &option, &field);
    const int icons = static_cast<int>(field.actions().size()) * kSideIcon;
    return field.fontMetrics().horizontalAdvance(field.placeholderText()) > room.width() - icons - kTextMargin;
}

bool IsCut(const QComboBox& box, const QString& entry)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    option.frame = box.hasFrame();
    const QRect room = box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box);
    return box.fontMetrics().horizontalAdvance(entry) > room.width();
}

class Reader
{
public:
    explicit Reader(const QWidget& window)
    {
        if (window.width() > kSmallestScreen.width() || window.height() > kSmallestScreen.height())
            note(window, u"%1 x %2"_s.arg(window.width()).arg(window.height()));
        const QList<QWidget*> widgets = window.findChildren<QWidget*>();
        for (const QWidget* widget : widgets) {
            if (widget->isVisibleTo(&window) && widget->window() == &window)
                read(*widget);
        }
    }
    QStringList lines;

private:
    void note(const QWidget& widget, const QString& text)
    {
        QString name = QString::fromLatin1(widget.metaObject()->className());
        for (const QWidget* named = &widget; named; named = named->parentWidget()) {
            if (!named->objectName().isEmpty()) {
                name = named == &widget ? named->objectName() : QString(name + u" in "_s + named->objectName());
                break;
            }
        }
        lines << name + u": "_s + text;
    }

    void read(const QWidget& widget)
    {
        if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
            const bool shortened = label->text().startsWith(u'~') || label->text().endsWith(u'~');
            if (!label->text().isEmpty() && (shortened || IsCut(*label)))
                note(widget, shortened ? label->toolTip() : label->text());
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
            const bool shortened = button->text().startsWith(u'~') || button->text().endsWith(u'~');
            if (!button->text().isEmpty() && (shortened || button->sizeHint().width() > button->width() ||
                                              button->minimumSizeHint().height() > button->height()))
                note(widget, shortened ? button->toolTip() : button->text());
        } else if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) {
            if (box->title().startsWith(u'~') || box->title().endsWith(u'~') ||
                box->minimumSizeHint().width() > box->width())
                note(widget, box->toolTip());
        } else if (const auto* heads = qobject_cast<const QHeaderView*>(&widget)) {
            readHeads(*heads);
        } else if (const auto* field = qobject_cast<const QLineEdit*>(&widget)) {
            if (IsCut(*field))
                note(widget, field->placeholderText());
        } else if (const auto* choice = qobject_cast<const QComboBox*>(&widget)) {
            for (int i = 0; i < choice->count(); ++i) {
                if (IsCut(*choice, choice->itemText(i)))
                    note(widget, choice->itemText(i));
            }
        } else if (const auto* spin = qobject_cast<const QAbstractSpinBox*>(&widget)) {
            const auto* edit = spin->findChild<QLineEdit*>();
            if (edit && edit->fontMetrics().horizontalAdvance(edit->text()) > edit->width())
                note(widget, edit->text());
        } else if (const auto* steps = qobject_cast<const StepStrip*>(&widget)) {
            if (steps->minimumSizeHint().width() > steps->width())
                note(widget, steps->accessibleName());
        } else if (const auto* status = qobject_cast<const StatusLabel*>(&widget)) {
            if (status->heightForWidth(status->width()) > status->height())
                note(widget, status->text());
        } else if (const auto* table = qobject_cast<const QTableView*>(&widget)) {
            readCells(*table);
        } else if (const auto* area = qobject_cast<const QAbstractScrollArea*>(&widget)) {
            if (area->horizontalScrollBar()->maximum() > 0)
                note(widget, u"wider than its room by %1"_s.arg(area->horizontalScrollBar()->maximum()));
        }
        readPlace(widget);
    }

    void readHeads(const QHeaderView& heads)
    {
        if (heads.orientation() != Qt::Horizontal)
            return;
        for (int section = 0; section < heads.count(); ++section) {
            const QString text = heads.model()->headerData(section, Qt::Horizontal).toString();
            const bool sorted = heads.isSortIndicatorShown() && heads.sortIndicatorSection() == section;
            const int beside = 2 * heads.style()->pixelMetric(QStyle::PM_HeaderMargin) + (sorted ? kSortArrow : 0);
            if (!text.isEmpty() && !heads.isSectionHidden(section) &&
                heads.fontMetrics().horizontalAdvance(text) + beside > heads.sectionSize(section))
                note(heads, text);
        }
    }

    void readCells(const QTableView& table)
    {
        const int beyond = table.horizontalScrollBar()->maximum();
        if (beyond > 0)
            note(table, u"wider than its room by %1"_s.arg(beyond));
        for (int row = 0; row < table.model()->rowCount() && row < kRowsRead; ++row) {
            for (int column = 0; column < table.model()->columnCount(); ++column) {
                const QModelIndex cell = table.model()->index(row, column);
                const QRect place = table.visualRect(cell);
                QStyleOptionViewItem option;
                option.initFrom(&table);
                option.rect = place;
                option.widget = &table;
                const QSize needed = table.itemDelegateForIndex(cell)->sizeHint(option, cell);
                if (!table.isColumnHidden(column) &&
                    (needed.width() > place.width() || needed.height() > place.height()))
                    note(table, cell.data().toString());
            }
        }
    }

    // What scrolls, is a view's own part or lies in a splitter may reach outside.
    void readPlace(const QWidget& widget)
    {
        const QWidget* parent = widget.parentWidget();
        if (qobject_cast<const QSplitter*>(parent) || qobject_cast<const QAbstractScrollArea*>(parent) ||
            qobject_cast<const QAbstractScrollArea*>(parent->parent()))
            return;
        if (!parent->rect().contains(widget.geometry()))
            note(widget, u"reaches out of its parent"_s);
    }
};

} // namespace

QStringList CutCaptions(const QWidget& window)
{
    return Reader(window).lines;
}
