#include "emap/ui/EMapMove.h"

#include "app/language/Languages.h"
#include "app/language/ui/ChangeLanguage.h"
#include "app/shell/Messages.h"
#include "emap/ui/EMapTree.h"
#include "emap/ui/ui_EMapMove.h"
#include "look/tables/Tables.h"
#include "look/widgets/ActionBar.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

EMapMove::EMapMove(EMapTreeModel& model, const QStringList& keys, QWidget* parent)
    : DialogFrame(parent)
    , m_ui(std::make_unique<Ui::EMapMove>())
{
    setObjectName(u"Form_EMapMove"_s);
    m_ui->setupUi(content());
    setWindowTitle(GetLangString(1263));
    QStringList names;
    for (const QString& key : keys)
        names << model.indexOf(key).data().toString();
    setSubtitle(names.join(u", "_s));
    setCloseText(GetLangString(Message::kClose));
    m_places =
        new EMapTreeFilter(&model, this, [&model, keys](const QString& key) { return model.refusal(keys, key) == 0; });
    StyleTree(m_ui->treePlaces);
    m_ui->treePlaces->setModel(m_places);
    m_ui->treePlaces->expandAll();
    m_ui->treePlaces->setAccessibleName(GetLangString(1263));
    m_ui->txtMoveFilter->setPlaceholderText(GetLangString(1260));
    m_ui->txtMoveFilter->setAccessibleName(GetLangString(1260));
    QPushButton* cancel = footer()->addButton(GetLangString(Message::kCancel));
    cancel->setObjectName(u"lbMoveCancel"_s);
    m_move = footer()->addButton(GetLangString(1268), "primary"_L1);
    m_move->setObjectName(u"lbMove"_s);
    m_move->setDefault(true);
    m_move->setEnabled(false);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_move, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->txtMoveFilter, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_places->setFilterFixedString(text);
        m_ui->treePlaces->expandAll();
    });
    connect(m_ui->treePlaces->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { m_move->setEnabled(!target().isEmpty()); });
    connect(m_ui->treePlaces, &QTreeView::doubleClicked, m_move, &QPushButton::click);
    ApplyLanguage(this);
    resize(460, 480);
}

EMapMove::~EMapMove() = default;

QString EMapMove::target() const
{
    return m_ui->treePlaces->selectionModel()->selectedIndexes().value(0).data(EMapTreeModel::kKeyRole).toString();
}
