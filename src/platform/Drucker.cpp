// The printer in use.
#include "platform/Drucker.h"

#include "values/Laufzeitfehler.h"

namespace altardienst {
namespace {

/// No printer at all.
class KeinDrucker : public DruckerDienst {
  public:
    std::optional<int> Dialog(const Druckanfrage &) override { return std::nullopt; }
    std::vector<Text> Schriften() const override { return {}; }
    void FontName(const Text &) override {}
    void FontSize(int) override {}
    void FontSizeFein(Single) override {}
    void FontBold(bool) override {}
    void FontItalic(bool) override {}
    void FontStrikethru(bool) override {}
    void FontUnderline(bool) override {}
    void CurrentX(Single) override {}
    void CurrentY(Single) override {}
    Single CurrentY() const override { return 0; }
    Single Height() const override { return 0; }
    Single Width() const override { return 0; }
    Single TextWidth(const Text &) const override { return 0; }
    Single TextHeight() const override { return 0; }
    void Orientation(int) override {}
    void Print(const Text &) override { throw Laufzeitfehler(Laufzeitfehler::Druckerfehler); }
    void Line(const Druckstrich &) override { throw Laufzeitfehler(Laufzeitfehler::Druckerfehler); }
    void Picture(const Druckbild &) override
    {
        throw Laufzeitfehler(Laufzeitfehler::Druckerfehler);
    }
    void NewPage() override {}
    void EndDoc() override {}
    void Verwerfen() override {}
};

KeinDrucker keiner;

} // namespace

DruckerDienst *Drucker = &keiner;

} // namespace altardienst
