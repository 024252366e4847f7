// Tells a trial what a program shows, object by object of its accessibility tree: under Wine nobody
// else can read it from outside. Qt loads it into a program that is started with
//
//   QT_PLUGIN_PATH=<folder of generic/occhio.dll> QT_QPA_GENERIC_PLUGINS=occhio:<port>
//
// It calls the port of this machine and answers each line with one of JSON:
//
//   tutti    what is on the screen, from the top of the tree
//   uno ID   one object; null where it has gone

#include <QAccessible>
#include <QGenericPlugin>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTcpSocket>
#include <QTimer>

namespace {

// The words of the tree on other desktops, for what trials ask for.
QString Ruolo(QAccessible::Role ruolo) {
  switch (ruolo) {
    case QAccessible::Button:
      return QStringLiteral("push button");
    case QAccessible::StaticText:
      return QStringLiteral("label");
    case QAccessible::MenuItem:
      return QStringLiteral("menu item");
    case QAccessible::EditableText:
      return QStringLiteral("text");
    case QAccessible::Pane:
    case QAccessible::Grouping:
      return QStringLiteral("panel");
    case QAccessible::Window:
      return QStringLiteral("frame");
    case QAccessible::Dialog:
      return QStringLiteral("dialog");
    case QAccessible::PopupMenu:
      return QStringLiteral("popup menu");
    case QAccessible::ComboBox:
      return QStringLiteral("combo box");
    case QAccessible::CheckBox:
      return QStringLiteral("check box");
    case QAccessible::RadioButton:
      return QStringLiteral("radio button");
    case QAccessible::ListItem:
      return QStringLiteral("list item");
    default:
      return QString::number(int(ruolo));
  }
}

bool SiVede(const QAccessible::State& stato) {
  return stato.invisible == 0 && stato.offscreen == 0;
}

QJsonObject Racconta(QAccessibleInterface& oggetto) {
  const QRect posto = oggetto.rect();
  const QAccessible::State stato = oggetto.state();
  QAccessibleTextInterface* testo = oggetto.textInterface();
  return {
      {QStringLiteral("id"), qint64(QAccessible::uniqueId(&oggetto))},
      {QStringLiteral("ruolo"), Ruolo(oggetto.role())},
      {QStringLiteral("nome"), oggetto.text(QAccessible::Name)},
      {QStringLiteral("descrizione"), oggetto.text(QAccessible::Description)},
      {QStringLiteral("testo"),
       testo == nullptr ? QString() : testo->text(0, testo->characterCount())},
      {QStringLiteral("posto"), QJsonArray{posto.x(), posto.y(), posto.width(), posto.height()}},
      {QStringLiteral("visibile"), SiVede(stato)},
      {QStringLiteral("abilitato"), stato.disabled == 0},
      {QStringLiteral("scrivibile"),
       stato.editable != 0 && stato.readOnly == 0 && stato.disabled == 0},
      {QStringLiteral("fuoco"), stato.focused != 0}};
}

void Raccogli(QAccessibleInterface* oggetto, QJsonArray& visti) {
  if (oggetto == nullptr || !oggetto->isValid()) return;
  if (SiVede(oggetto->state())) visti.append(Racconta(*oggetto));
  for (int i = 0; i < oggetto->childCount(); ++i) Raccogli(oggetto->child(i), visti);
}

QByteArray Risposta(const QByteArray& domanda) {
  if (domanda == "tutti") {
    QJsonArray visti;
    Raccogli(QAccessible::queryAccessibleInterface(qApp), visti);
    return QJsonDocument(visti).toJson(QJsonDocument::Compact);
  }
  const auto id = QAccessible::Id(domanda.mid(4).toLongLong());
  QAccessibleInterface* oggetto = QAccessible::accessibleInterface(id);
  if (oggetto == nullptr || !oggetto->isValid()) return "null";
  return QJsonDocument(Racconta(*oggetto)).toJson(QJsonDocument::Compact);
}

class Occhio final : public QObject {
 public:
  explicit Occhio(quint16 porta) {
    connect(&filo_, &QTcpSocket::readyRead, this, [this] {
      while (filo_.canReadLine()) filo_.write(Risposta(filo_.readLine().trimmed()) + '\n');
    });
    // Once the program runs, as assistive technology that is there before it.
    QTimer::singleShot(0, this, [this, porta] {
      QAccessible::setActive(true);
      filo_.connectToHost(QStringLiteral("127.0.0.1"), porta);
    });
  }

 private:
  QTcpSocket filo_;
};

}  // namespace

class ModuloOcchio final : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "occhio.json")

 public:
  QObject* create(const QString& /*name*/, const QString& porta) override {
    return new Occhio(porta.toUShort());  // Qt's from here on
  }
};

#include "occhio.moc"
