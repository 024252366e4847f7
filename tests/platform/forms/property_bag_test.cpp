#include "platform/forms/property_bag.h"

#include <QApplication>
#include <QTest>

#include "support/iscrizione.h"

namespace property_bag_test {

using platform::convertedTo;
using platform::PropertyBag;
using platform::PropertyValue;
using platform::RunTimeError;

class PropertyBagTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void whatIsNotThereReadsAsTheDefault() {
    const PropertyBag bag;
    QVERIFY(bag.read(u"Colore", PropertyValue(2.5)) == PropertyValue(2.5));
  }

  void valuesKeepTheirTypesAndTheirOrder() {
    PropertyBag bag;
    bag.write(u"b", true, false);
    bag.write(u"a", qint16(3), qint16(0));
    bag.write(u"d", 1.5, 0.0);
    bag.write(u"c", QStringLiteral("testo"), QString());
    bag.write(u"e", qint32(70000), qint32(0));
    QStringList names;
    for (const PropertyBag::Entry& entry : bag.entries()) names.append(entry.name);
    QCOMPARE(names.join(u','), QStringLiteral("b,a,d,c,e"));
    QVERIFY(bag.read(u"b", false) == PropertyValue(true));
    QVERIFY(bag.read(u"a", qint16(0)) == PropertyValue(qint16(3)));
    QVERIFY(bag.read(u"d", 0.0) == PropertyValue(1.5));
    QVERIFY(bag.read(u"c", QString()) == PropertyValue(QStringLiteral("testo")));
    QVERIFY(bag.read(u"e", qint32(0)) == PropertyValue(qint32(70000)));
  }

  void aValueAtItsDefaultIsNotKept() {
    PropertyBag bag;
    bag.write(u"a", qint16(4), qint16(4));
    QVERIFY(bag.entries().empty());
    bag.write(u"a", qint16(5), qint16(4));
    bag.write(u"b", true, false);
    bag.write(u"a", qint16(6), qint16(4));
    QCOMPARE(bag.entries().size(), std::size_t(2));
    QVERIFY(bag.entries()[0].value == PropertyValue(qint16(6)));
    bag.write(u"a", qint16(4), qint16(4));
    QCOMPARE(bag.entries().size(), std::size_t(1));
  }

  void theDesignsInstancesAreRead() {
    constexpr auto kStored = std::to_array<platform::StoredProperty>(
        {{"AiutoVisibile", false}, {"Text", std::string_view("però")}});
    const PropertyBag bag(kStored);
    QVERIFY(bag.read(u"AiutoVisibile", true) == PropertyValue(false));
    QVERIFY(bag.read(u"Text", QString()) == PropertyValue(QStringLiteral("però")));
  }

  void numbersTakeTheTypeThatIsAskedFor() {
    QCOMPARE(convertedTo<qint32>(PropertyValue(14737632.0)), 14737632);
    QCOMPARE(convertedTo<double>(PropertyValue(qint32(255))), 255.0);
    QCOMPARE(convertedTo<qint16>(PropertyValue(2.5)), qint16(2));
    QCOMPARE(convertedTo<qint16>(PropertyValue(true)), qint16(-1));
    QCOMPARE(convertedTo<bool>(PropertyValue(qint16(2))), true);
  }

  void whatDoesNotFitIsARunTimeError() {
    const auto errorOf = [](const auto& action) {
      try {
        action();
      } catch (const RunTimeError& error) {
        return error.number();
      }
      return 0;
    };
    QCOMPARE(errorOf([] { (void)convertedTo<qint16>(PropertyValue(qint32(40000))); }), 6);
    QCOMPARE(errorOf([] { (void)convertedTo<qint32>(PropertyValue(1e300)); }), 6);
    QCOMPARE(errorOf([] { (void)convertedTo<qint32>(PropertyValue(std::nan(""))); }), 6);
    QCOMPARE(errorOf([] { (void)convertedTo<qint16>(PropertyValue(QStringLiteral("x"))); }), 5);
    QCOMPARE(errorOf([] { (void)convertedTo<QString>(PropertyValue(1.0)); }), 5);
  }
};

const prova::Iscrizione<PropertyBagTest, QApplication> kIscritta;

}  // namespace property_bag_test

#include "property_bag_test.moc"
