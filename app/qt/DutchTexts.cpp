#include "app/qt/DutchTexts.h"

#include <cstddef>
#include <map>
#include <string_view>

namespace veltrix {

namespace {

struct Text {
    std::string_view english;
    const char* dutch;
};

// The keys of a Dutch keyboard; those that are not here are called as in English.
constexpr Text keys[] = {
    {"Left", "←"}, {"Right", "→"},      {"Up", "↑"},
    {"Down", "↓"}, {"Space", "Spatie"}, {"Return", "Enter"},
};

// A text means the same wherever the toolkit uses it, so where does not matter.
constexpr Text texts[] = {
    // What is asked for as a text and is none
    {"QT_LAYOUT_DIRECTION", "LTR"},
    {"Alt+Left", "Alt+Left"},
    {"Alt+Right", "Alt+Right"},
    {"Alt+Up", "Alt+Up"},

    // Standard buttons
    {"OK", "OK"},
    {"&OK", "OK"},
    {"Cancel", "Annuleren"},
    {"&Cancel", "Annuleren"},
    {"&Yes", "&Ja"},
    {"&No", "&Nee"},
    {"Yes to &All", "Ja op &alles"},
    {"N&o to All", "N&ee op alles"},
    {"Open", "Openen"},
    {"&Open", "&Openen"},
    {"Save", "Bewaren"},
    {"&Save", "&Bewaren"},
    {"Save All", "Alles bewaren"},
    {"Close", "Sluiten"},
    {"&Close", "&Sluiten"},
    {"Close without Saving", "Sluiten zonder te bewaren"},
    {"Don't Save", "Niet bewaren"},
    {"Discard", "Niet bewaren"},
    {"Apply", "Toepassen"},
    {"Reset", "Terugzetten"},
    {"Restore Defaults", "Standaardwaarden terugzetten"},
    {"Help", "Help"},
    {"Abort", "Afbreken"},
    {"Retry", "Opnieuw proberen"},
    {"Ignore", "Negeren"},
    {"&Choose", "&Kiezen"},
    {"Show Details...", "Details tonen..."},
    {"Hide Details...", "Details verbergen..."},

    // File dialogs
    {"Look in:", "Zoeken in:"},
    {"Directory:", "Map:"},
    {"File &name:", "Bestands&naam:"},
    {"Files of type:", "Bestandstype:"},
    {"Back", "Terug"},
    {"Go back", "Naar de vorige map"},
    {"Forward", "Vooruit"},
    {"Go forward", "Naar de volgende map"},
    {"Parent Directory", "Bovenliggende map"},
    {"Go to the parent directory", "Naar de bovenliggende map"},
    {"Create New Folder", "Nieuwe map maken"},
    {"Create a New Folder", "Een nieuwe map maken"},
    {"&New Folder", "&Nieuwe map"},
    {"New Folder", "Nieuwe map"},
    {"List View", "Lijst"},
    {"Change to list view mode", "De namen in een lijst tonen"},
    {"Detail View", "Details"},
    {"Change to detail view mode", "Grootte en datum tonen"},
    {"Sidebar", "Zijbalk"},
    {"List of places and bookmarks", "Lijst van plaatsen en bladwijzers"},
    {"Files", "Bestanden"},
    {"&Rename", "&Naam wijzigen"},
    {"&Delete", "&Verwijderen"},
    {"Show &hidden files", "Ver&borgen bestanden tonen"},
    {"Remove", "Uit de lijst halen"},
    {"Recent Places", "Recente plaatsen"},
    {"Directories", "Mappen"},
    {"All Files (*)", "Alle bestanden (*)"},
    {"All files (*)", "Alle bestanden (*)"},
    {"Open File", "Bestand openen"},
    {"Find Directory", "Map zoeken"},
    {"Save As", "Bewaren als"},
    {"Delete", "Verwijderen"},
    {"Warning", "Let op"},
    {"Error", "Fout"},
    {"%1 already exists.\nDo you want to replace it?",
     "%1 bestaat al.\nWilt u het bestand vervangen?"},
    {"%1\nFile not found.\nPlease verify the correct file name was given.",
     "%1\nis niet gevonden.\nKlopt de naam van het bestand?"},
    {"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
     "%1\nis niet gevonden.\nKlopt de naam van de map?"},
    {"'%1' is write protected.\nDo you want to delete it anyway?",
     "'%1' is tegen schrijven beveiligd.\nWilt u het toch verwijderen?"},
    {"Are you sure you want to delete '%1'?", "Weet u zeker dat u '%1' wilt verwijderen?"},
    {"Could not delete directory.", "De map kon niet worden verwijderd."},
    {"My Computer", "Deze computer"},
    {"Computer", "Computer"},
    {"Name", "Naam"},
    {"Size", "Grootte"},
    {"Type", "Type"},
    {"Kind", "Soort"},
    {"Date Modified", "Gewijzigd op"},
    {"Invalid filename", "Ongeldige naam"},
    {"<b>The name \"%1\" cannot be used.</b>"
     "<p>Try using another name, with fewer characters or no punctuation marks.",
     "<b>De naam \"%1\" kan niet worden gebruikt.</b>"
     "<p>Probeer een kortere naam, of een naam zonder leestekens."},
    {"Drive", "Schijf"},
    {"File", "Bestand"},
    {"%1 File", "%1-bestand"},
    {"File Folder", "Map"},
    {"Folder", "Map"},
    {"Alias", "Alias"},
    {"Shortcut", "Snelkoppeling"},
    {"Unknown", "Onbekend"},
    {"Show ", "Tonen: "},
    {"%1 bytes", "%1 bytes"},
    {"%n byte(s)", "%n bytes"},

    // Menus of text fields
    {"&Undo", "&Ongedaan maken"},
    {"&Redo", "&Herhalen"},
    {"Cu&t", "K&nippen"},
    {"&Copy", "&Kopiëren"},
    {"Copy &Link Location", "Adres van de &koppeling kopiëren"},
    {"&Paste", "&Plakken"},
    {"Select All", "Alles selecteren"},
    {"&Select All", "Alles &selecteren"},
    {"Clear", "Wissen"},
    {"&Step up", "Om&hoog"},
    {"Step &down", "Om&laag"},

    // Menus of scroll bars
    {"Scroll here", "Hierheen schuiven"},
    {"Left edge", "Linkerrand"},
    {"Top", "Begin"},
    {"Right edge", "Rechterrand"},
    {"Bottom", "Einde"},
    {"Page left", "Bladzijde naar links"},
    {"Page up", "Bladzijde omhoog"},
    {"Page right", "Bladzijde naar rechts"},
    {"Page down", "Bladzijde omlaag"},
    {"Scroll left", "Naar links schuiven"},
    {"Scroll up", "Omhoog schuiven"},
    {"Scroll right", "Naar rechts schuiven"},
    {"Scroll down", "Omlaag schuiven"},

    // What a screen reader calls the things that can be done
    {"Press", "Indrukken"},
    {"Increase", "Hoger"},
    {"Decrease", "Lager"},
    {"ShowMenu", "Menu tonen"},
    {"SetFocus", "Kiezen"},
    {"Toggle", "Omzetten"},
    {"Scroll Left", "Naar links schuiven"},
    {"Scroll Right", "Naar rechts schuiven"},
    {"Scroll Up", "Omhoog schuiven"},
    {"Scroll Down", "Omlaag schuiven"},
    {"Previous Page", "Vorige bladzijde"},
    {"Next Page", "Volgende bladzijde"},
    {"Check", "Aanvinken"},
    {"Uncheck", "Uitvinken"},
    {"Triggers the action", "Voert de opdracht uit"},
    {"Increase the value", "Maakt de waarde groter"},
    {"Decrease the value", "Maakt de waarde kleiner"},
    {"Shows the menu", "Toont het menu"},
    {"Sets the focus", "Kiest dit onderdeel"},
    {"Toggles the state", "Zet dit onderdeel om"},
    {"Scrolls to the left", "Schuift naar links"},
    {"Scrolls to the right", "Schuift naar rechts"},
    {"Scrolls up", "Schuift omhoog"},
    {"Scrolls down", "Schuift omlaag"},
    {"Goes back a page", "Gaat een bladzijde terug"},
    {"Goes to the next page", "Gaat naar de volgende bladzijde"},
};

using Dictionary = std::map<std::string_view, const char*>;

template <std::size_t Size>
Dictionary dictionary(const Text (&list)[Size]) {
    Dictionary words;
    for (const Text& text : list)
        words.emplace(text.english, text.dutch);
    return words;
}

} // namespace

QString DutchTexts::translate(const char* context, const char* sourceText,
                              const char* /*disambiguation*/, int /*n*/) const {
    if (context == nullptr || sourceText == nullptr)
        return {};
    static const Dictionary ofKeys = dictionary(keys);
    static const Dictionary ofTexts = dictionary(texts);
    const bool isKey = std::string_view(context) == "QShortcut";
    const Dictionary& words = isKey ? ofKeys : ofTexts;
    const auto found = words.find(sourceText);
    if (found != words.end())
        return QString::fromUtf8(found->second);
    return isKey ? QString::fromUtf8(sourceText) : QString();
}

} // namespace veltrix
