#include <gtest/gtest.h>

#include <QRegularExpression>
#include <set>

#include "config/settings_bed.h"
#include "host/local/catalogue_folder.h"
#include "support/temporary_folder.h"

namespace tonarix {
namespace {

using std::filesystem::path;

const path kFolder = TONARIX_CATALOGUES;

struct Catalogue {
  explicit Catalogue(const std::string& name, const path& folder = kFolder)
      : language(catalogue_folder(folder)) {
    language.SprachInit();
    language.SprachWahl(name);
    tables.load(language);
  }
  QString text(int key) const { return QString::fromStdString(language.Wort({key})); }

  Language language;
  TextTables tables;
};

std::set<int> keys_of_the_code() {
  const TemporaryFolder folder;
  std::set<int> keys;
  const QRegularExpression key(R"(\b([1-9]\d*)_text\b)");  // 0_text stands for no text
  for (const auto& file : std::filesystem::recursive_directory_iterator(TONARIX_SOURCES "/src")) {
    const path name = file.path().filename();
    if (name == "text_key.h" || !(name.extension() == ".h" || name.extension() == ".cpp")) continue;
    auto found = key.globalMatch(QString::fromStdString(folder.content(file.path())));
    while (found.hasNext()) keys.insert(found.next().captured(1).toInt());
  }
  return keys;
}

TEST(Catalogues, HaveEveryKeyOfTheCodeAndOfEachOther) {
  const std::set<int> asked = keys_of_the_code();
  EXPECT_GT(asked.size(), 100U);
  const auto languages = catalogue_folder(kFolder).create_list()->languages();
  EXPECT_GE(languages.size(), 2U);
  const Catalogue german("Deutsch");
  for (const LanguageRow& row : languages) {
    const Catalogue other(row.name);
    for (int key = 1; key <= std::max(3000, *asked.rbegin()); ++key) {
      const QString text = other.text(key);
      EXPECT_EQ(text == "VOID", german.text(key) == "VOID") << key;
      EXPECT_FALSE(text.trimmed().isEmpty() || (text == "VOID" && asked.contains(key))) << key;
      EXPECT_EQ(text.count("%1"), german.text(key).count("%1")) << key;
    }
  }
}

TEST(Catalogues, ABrokenOrMissingOneIsNoLanguageAndNoHarmToTheOthers) {
  EXPECT_EQ(Catalogue("Klingon").text(131), "VOID");
  const TemporaryFolder folder;
  EXPECT_EQ(Catalogue("Deutsch", folder.path / "missing").text(432), "VOID");
  const std::string whole = folder.content(kFolder / "tonarixlang.deutsch.qm");
  for (const char* file :
       {"tonarixlang.english.qm", "tonarixlang.english.qm.sum", "tonarixlang.deutsch.qm.sum"}) {
    folder.write(file, folder.content(kFolder / file));
  }
  const auto refused = [&](const std::string& content) {
    folder.write("tonarixlang.deutsch.qm", content);
    EXPECT_EQ(Catalogue("English", folder.path).text(432), "OK");
    return Catalogue("Deutsch", folder.path).text(432) == "VOID" &&
           damaged_catalogues(folder.path) == std::vector<std::string>{"tonarixlang.deutsch.qm"};
  };
  for (std::size_t size = 0; size < whole.size(); size += 997) {
    EXPECT_TRUE(refused(whole.substr(0, size))) << size;
  }
  std::string changed = whole;
  changed[whole.size() / 2] ^= 1;
  EXPECT_TRUE(refused(changed));
  EXPECT_FALSE(refused(whole));
  folder.write("tonarixlang.deutsch.qm.sum", "");
  EXPECT_TRUE(refused(whole)) << "nothing tells whether it is whole";
}

TEST(Catalogues, TranslateATermAlikeEverywhere) {
  const QString terms =
      "aufwärts=upward abwärts=downward grundton=keynote prüfung=exam training=training "
      "intervall=interval speicher=sav fortsetzen=contin wiederhol=repeat okt=oct richtig=right "
      "falsch=wrong dur\\b=major moll=minor ergebnis=result hilfe=help gehör=ear musiklehre=theory "
      "niedrig=low hoch=high gelöst=solved schwer=difficult tonhöhe=pitch wechselnd=change "
      "vorton=before automatisch=automatic gesperrt=locked protokoll=protocol schreiben=writ "
      "bestimmen=identify \\bbilden=build spielen=play übungsart=type drucken=print";
  const Catalogue german("Deutsch"), english("English");
  for (const QString& term : terms.split(' ')) {
    const QStringList pair = term.split('=');
    const QRegularExpression in_german(pair[0], QRegularExpression::CaseInsensitiveOption);
    for (int key = 1; key < 3000; ++key) {
      if (!german.text(key).contains(in_german)) continue;
      EXPECT_TRUE(english.text(key).contains(pair[1], Qt::CaseInsensitive)) << key;
    }
  }
}

struct Wording {
  const char* language;
  std::array<std::string, 7> naturals;  // along the line of fifths from F
  std::array<std::string, 5> signs;     // behind them, from the double flat to the double sharp
  std::map<std::string, std::string> contracted;
  std::array<QString, 5> qualities;  // perfect, large, small, augmented, diminished
  const char* short_qualities;       // Latin-1
};

const Wording kWordings[] = {
    {"Deutsch",
     {"f", "c", "g", "d", "a", "e", "h"},
     {"eses", "es", "", "is", "isis"},
     {{"aes", "as"}, {"aeses", "ases"}, {"ees", "es"}, {"eeses", "eses"}, {"hes", "b"}},
     {"", "große ", "kleine ", "überm. ", "verm. "},
     "rgk\xFCv"},
    {"English",
     {"f", "c", "g", "d", "a", "e", "b"},
     {" double flat", " flat", "", " sharp", " double sharp"},
     {},
     {"Perfect ", "Major ", "Minor ", "Augmented ", "Diminished "},
     "PMmAd"},
};

TEST(Catalogues, NameTonesAndTheEndsOfRangesAlongTheLineOfFifths) {
  for (const Wording& wording : kWordings) {
    const Catalogue catalogue(wording.language);
    const ToneNames names(catalogue.language);
    for (std::int16_t chr = 12; chr <= 96; ++chr) {
      for (std::size_t qz = 0; qz < kNamedTones; ++qz) {
        const Tone tone{chr, static_cast<std::int16_t>(qz)};
        const int octave = written_octave(tone);
        if (chr % 12 != pitch_class(tone.qz) || octave < 1) continue;
        std::string name = wording.naturals[qz % 7] + wording.signs[qz / 7];
        if (wording.contracted.contains(name)) name = wording.contracted.at(name);
        if (octave < 4) name[0] = static_cast<char>(std::toupper(name[0]));
        const std::string marks =
            octave < 4 ? std::string(3 - octave, ',') : std::string(octave - 4, '\'');
        EXPECT_EQ(names.name(tone), marks + name) << chr << " " << qz;
        if (qz != 15) continue;
        // Ranges begin and end at a c, which has its marks behind it there.
        const int entry = chr / 12 - 3;
        const QString end = QString::fromStdString(name + marks);
        EXPECT_TRUE(entry < 0 || entry > 3 || catalogue.text(681 + entry) == end) << chr;
        EXPECT_TRUE(entry < 2 || catalogue.text(692 + entry) == end) << chr;
      }
    }
  }
}

TEST(Catalogues, NameIntervalsByTheirFifths) {
  const std::size_t place_in_stufe_kurz[] = {0, 4, 7, 3, 2, 6, 5};  // by steps of the scale
  for (const Wording& wording : kWordings) {
    const Catalogue catalogue(wording.language);
    const IntervalNames names(catalogue.language);
    for (int code = 0; code < kNamedIntervals; ++code) {
      const int fifths = fifth_steps(code);
      const int size = std::abs(fifths);
      const std::size_t quality = size < 2 ? 0 : (size < 6 ? 1 : 3) + (fifths < 0 ? 1 : 0);
      const int steps = code == 0 || fifths == -7 ? 7 : (4 * fifths + 56) % 7;
      const QString number =
          steps == 7
              ? catalogue.text(46)
              : QString::fromStdString(catalogue.tables.stufe_kurz[place_in_stufe_kurz[steps]]);
      EXPECT_EQ(QString::fromStdString(names.long_name(static_cast<IntervalCode>(code))).toLower(),
                (size == 0 ? number : wording.qualities[quality] + number).toLower());
      EXPECT_EQ(QString::fromStdString(names.short_name(static_cast<IntervalCode>(code))),
                QLatin1Char(wording.short_qualities[quality]) + QString::number(steps + 1));
    }
  }
}

TEST(Catalogues, GiveEachChoiceOfTheSettingsItsMeaning) {
  const Catalogue german("Deutsch");
  SettingsBed bed;
  for (int key = 1; key < 2000; ++key) bed.texts.given[key] = german.language.Wort({key});
  std::string told;
  const auto tell = [&told](const auto& texts) {
    for (const std::string& one : texts) told += one + "|";
  };
  tell(german.tables.theory_kinds);
  for (const ExerciseRow& row : kExercises) {
    if (row.sounds()) told += german.language.Wort(row.title) + "|";
  }
  tell(german.tables.levels);
  tell(german.tables.accuracies);
  for (const Control* control : bed.open().controls()) {
    const bool title = control->name() == "geinst_lb";
    if (title || dynamic_cast<const OptionControl*>(control)) told += control->text + "|";
  }
  const auto& forming = bed.open<Einstellung2>();
  for (const int frame : {4, 6}) told += forming.geinst_lb[frame].text + "|";
  for (const OptionControl& task : forming.aufg) told += task.text + "|";
  EXPECT_EQ(told,
            "Übungsart|Gehörbildung|Musiklehre|tonale Intervalle (sukzessiv) bestimmen|"
            "tonale Intervalle sukzessiv bilden|Töne nachspielen|"
            "tonale Intervalle sukzessiv schreiben|Freies Üben|Training mit Speichern|"
            "Training fortsetzen|Test|Prüfung|sehr niedrig|niedrig|mittel|hoch|sehr hoch|"
            "Tonart|Tonraum|Klang|Intervall-Größe|Intervall-Anzahl|Tongeschlecht|"
            "Intervall-Bestimmung|Abfolge|Ton 2: auf Stufe(n)|Grundton zusätzlich|Übungsmodus|"
            "Frequenz|Tempo|Stimmung|manuell|automatisch|Dur|moll|Dur-moll|2 Oktaven|3 Oktaven|"
            "4 Oktaven|5 Oktaven|max. 1 Oktave|1 - 2 Oktaven|gemischt (0 - 2 Okt)|Prüfung|alle|"
            "1 nach Wahl|gleichbleibend|wechselnd|ja|nein|fest (a' 440 Hz)|variabel|"
            "temperiert|rein (pythag.)|mitteltönig (Kirnberger)|2|3|4|5|vom Grundton|vom Vorton|"
            "Aufgabe|Genauigkeit|nachbilden|bilden|");
}

}  // namespace
}  // namespace tonarix
