#include "model/code_tables.h"

#include "l10n/texts.h"

namespace {

const char* const kNormalTones[] = {
    "67.0",  "71.9",  "74.4",  "77.0",  "79.7",  "82.5",  "85.4",  "88.5",  "91.5",  "94.8",
    "97.4",  "100",   "103.5", "107.2", "110.9", "114.8", "118.8", "123",   "127.3", "131.8",
    "136.5", "141.3", "146.2", "151.4", "156.7", "162.2", "167.9", "173.8", "179.9", "186.2",
    "192.8", "203.5", "210.7", "218.1", "225.7", "233.6", "241.8", "250.3",
};

const char* const kNormalDcs[] = {
    "023", "025", "026", "031", "032", "043", "047", "051", "054", "065", "071", "072", "073",
    "074", "114", "115", "116", "125", "131", "132", "134", "143", "152", "155", "156", "162",
    "165", "172", "174", "205", "223", "226", "243", "244", "245", "251", "261", "263", "265",
    "271", "306", "311", "315", "331", "343", "346", "351", "364", "365", "371", "411", "412",
    "413", "423", "431", "432", "445", "464", "465", "466", "503",
};

// The ascending run first, then five tones added later, out of order on purpose: their
// positions are what the radio stores.
const char* const kProfessionalTones[] = {
    "67.0",  "69.3",  "71.9",  "74.4",  "77.0",  "79.7",  "82.5",  "85.4",  "88.5",  "91.5",
    "94.8",  "97.4",  "100",   "103.5", "107.2", "110.9", "114.8", "118.8", "123",   "127.3",
    "131.8", "136.5", "141.3", "146.2", "151.4", "156.7", "159.8", "162.2", "165.5", "167.9",
    "171.3", "173.8", "177.3", "179.9", "183.5", "186.2", "189.9", "192.8", "196.6", "199.5",
    "203.5", "206.5", "210.7", "218.1", "225.7", "229.1", "233.6", "241.8", "250.3", "254.1",
    "95.2",  "125.4", "143.1", "175.1", "245.1",
};

const char* const kProfessionalDcs[] = {
    "023", "025", "026", "031", "032", "036", "043", "047", "051", "053", "054", "065",
    "071", "072", "073", "074", "114", "115", "116", "122", "125", "131", "132", "134",
    "143", "145", "152", "155", "156", "162", "165", "172", "174", "205", "212", "223",
    "225", "226", "243", "244", "245", "246", "251", "252", "255", "261", "263", "265",
    "266", "271", "274", "306", "311", "315", "325", "331", "332", "343", "346", "351",
    "356", "364", "365", "371", "411", "412", "413", "423", "431", "432", "445", "446",
    "452", "454", "455", "462", "464", "465", "466", "503", "506", "516", "523", "526",
    "532", "546", "565", "606", "612", "624", "627", "631", "632", "645", "654", "662",
    "664", "703", "712", "723", "731", "732", "734", "743", "754",
};

template <std::size_t N>
void append(QStringList& table, const char* const (&entries)[N], const char* prefix = "") {
    for (const char* entry : entries) table << QLatin1String(prefix) + QLatin1String(entry);
}

}  // namespace

QStringList NormalCodeTable() {
    // Built once: every mode switch and file load takes a table, and copies share its entries.
    static const QStringList table = [] {
        QStringList built{QLatin1String(kCodeOff)};
        append(built, kNormalTones);
        append(built, kNormalDcs, "D");
        return built;
    }();
    return table;
}

QStringList ProfessionalCodeTable(UiLanguage language) {
    const auto build = [](UiLanguage words) {
        QStringList built{QLatin1String(kCodeOff)};
        append(built, kProfessionalTones);
        append(built, kProfessionalDcs, "D");
        append(built, kProfessionalDcs, "I");  // inverted = normal + 105
        built << l10n::caption(l10n::CapCustomTone, words) << QLatin1String(kCdcssText);
        return built;
    };
    static const QStringList chinese = build(UiLanguage::Chinese);
    static const QStringList english = build(UiLanguage::English);
    return language == UiLanguage::Chinese ? chinese : english;
}

QStringList buildCodeTable(int normalmode, UiLanguage language) {
    return normalmode == 1 ? ProfessionalCodeTable(language) : NormalCodeTable();
}

QString codeText(const QStringList& table, int number) {
    return table.value(number);
}

bool isCustomToneText(const QString& text) {
    return text == l10n::caption(l10n::CapCustomTone, UiLanguage::Chinese) ||
           text == l10n::caption(l10n::CapCustomTone, UiLanguage::English);
}
