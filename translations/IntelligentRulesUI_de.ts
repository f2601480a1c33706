<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>CalibrateAreaData</name>
    <message>
        <source>%1 has no vertical length.</source>
        <translation>%1 hat keine senkrechte Länge.</translation>
    </message>
    <message>
        <source>%1 has no length.</source>
        <translation>%1 hat keine Länge.</translation>
    </message>
    <message>
        <source>%1 has no horizontal length.</source>
        <translation>%1 hat keine waagerechte Länge.</translation>
    </message>
    <message>
        <source>%1 has no width.</source>
        <translation>%1 hat keine Breite.</translation>
    </message>
</context>
<context>
    <name>CalibrateAreaScene</name>
    <message>
        <source>Calibrate area</source>
        <translation>Kalibrierbereich</translation>
    </message>
    <message>
        <source>Vertical length</source>
        <translation>Senkr. Länge</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Horizontal length</source>
        <translation>Waager. Länge</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Vertical ruler</source>
        <translation>Senkrechte Latte</translation>
    </message>
    <message>
        <source>Horizontal ruler</source>
        <translation>Waagerechte Latte</translation>
    </message>
    <message>
        <source>The area has no length here.</source>
        <translation>Dem Bereich fehlt hier eine Länge.</translation>
    </message>
</context>
<context>
    <name>CalibrateAreaTemplate</name>
    <message>
        <source>region</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>verticalLine</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>horizontalLine</source>
        <translation>Quer</translation>
    </message>
    <message>
        <source>vertical</source>
        <translation>Senkrecht</translation>
    </message>
    <message>
        <source>meter</source>
        <translation>Meter</translation>
    </message>
    <message>
        <source>horizontal</source>
        <translation>Waagerecht</translation>
    </message>
    <message>
        <source>Lane calibration</source>
        <translation>Fahrspurkalibrierung</translation>
    </message>
    <message>
        <source>Scene calibration</source>
        <translation>Szenenkalibrierung</translation>
    </message>
</context>
<context>
    <name>DetectionScene</name>
    <message>
        <source>Detection area</source>
        <translation>Zone</translation>
    </message>
    <message>
        <source>Detection configuration</source>
        <translation>Erkennungskonfiguration</translation>
    </message>
</context>
<context>
    <name>DrawScene</name>
    <message>
        <source>Please draw %1!</source>
        <translation>Bitte %1 zeichnen!</translation>
    </message>
    <message>
        <source>Draw %1 complete!</source>
        <translation>%1 ist fertig gezeichnet!</translation>
    </message>
</context>
<context>
    <name>DrawingHint</name>
    <message>
        <source>Redraw draws the figure anew.</source>
        <translation>Neu zeichnen beginnt die Figur neu.</translation>
    </message>
    <message>
        <source>Refused: lines would cross.</source>
        <translation>Abgelehnt: Linien würden sich kreuzen.</translation>
    </message>
    <message>
        <source>Refused: outside its area.</source>
        <translation>Abgelehnt: außerhalb seiner Fläche.</translation>
    </message>
    <message>
        <source>Refused: the place is taken.</source>
        <translation>Abgelehnt: die Stelle ist belegt.</translation>
    </message>
    <message>
        <source>Right click or Enter finishes.</source>
        <translation>Rechtsklick oder Eingabe schließt ab.</translation>
    </message>
    <message>
        <source>Left click adds a point. Still needed: %1.</source>
        <translation>Linksklick setzt Punkte. Noch nötig: %1.</translation>
    </message>
    <message>
        <source>Still needed: %1. Backspace takes one back.</source>
        <translation>Noch nötig: %1. Rücktaste nimmt einen zurück.</translation>
    </message>
    <message>
        <source>Drag corners to correct, with Ctrl the figure.</source>
        <translation>Ecken ziehen korrigiert, mit Strg die ganze Figur.</translation>
    </message>
    <message>
        <source>Refused: a figure inside would be outside.</source>
        <translation>Abgelehnt: eine Figur darin läge außerhalb.</translation>
    </message>
    <message>
        <source>Refused: it needs all its corners.</source>
        <translation>Abgelehnt: alle Ecken werden gebraucht.</translation>
    </message>
</context>
<context>
    <name>EditMenu</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Wieder&amp;holen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Ein&amp;fügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
</context>
<context>
    <name>EntryTransfer</name>
    <message>
        <source>There is no entry to copy.</source>
        <translation>Es gibt keinen Eintrag, der kopiert werden könnte.</translation>
    </message>
    <message>
        <source>Its figures are not finished yet.</source>
        <translation>Seine Figuren sind noch nicht fertig.</translation>
    </message>
    <message>
        <source>Nothing can be added here.</source>
        <translation>Hier kann nichts hinzugefügt werden.</translation>
    </message>
    <message>
        <source>Nothing was copied.</source>
        <translation>Es wurde nichts kopiert.</translation>
    </message>
    <message>
        <source>What was copied cannot be read.</source>
        <translation>Was kopiert wurde, kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>What was copied belongs to another section.</source>
        <translation>Was kopiert wurde, gehört in einen anderen Abschnitt.</translation>
    </message>
    <message>
        <source>A figure is being drawn.</source>
        <translation>Es wird gerade eine Figur gezeichnet.</translation>
    </message>
    <message>
        <source>There are as many entries as there may be.</source>
        <translation>Es gibt so viele Einträge, wie es geben darf.</translation>
    </message>
    <message>
        <source>The entry is too large to be copied.</source>
        <translation>Der Eintrag ist zu groß, um kopiert zu werden.</translation>
    </message>
</context>
<context>
    <name>FightCalibrateScene</name>
    <message>
        <source>Calibrate area</source>
        <translation>Kalibrierbereich</translation>
    </message>
    <message>
        <source>Calibrate rect</source>
        <translation>Kalibrierrechteck</translation>
    </message>
</context>
<context>
    <name>FightCalibrateTemplate</name>
    <message>
        <source>Fight configuration</source>
        <translation>Schlägereierkennung</translation>
    </message>
    <message>
        <source>Calibrate area</source>
        <translation>Kalibrierbereich</translation>
    </message>
    <message>
        <source>Calibrate rect</source>
        <translation>Feld</translation>
    </message>
</context>
<context>
    <name>GlobalScene</name>
    <message>
        <source>Global configuration</source>
        <translation>Globale Konfiguration</translation>
    </message>
</context>
<context>
    <name>IntelligentRulesCtrl</name>
    <message>
        <source>Channel information</source>
        <translation>Kanalinformationen</translation>
    </message>
    <message>
        <source>Channel Code:</source>
        <translation>Kanalcode:</translation>
    </message>
    <message>
        <source>Channel Name:</source>
        <translation>Kanalname:</translation>
    </message>
    <message>
        <source>Rule information</source>
        <translation>Regelinformationen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
</context>
<context>
    <name>IntelligentRulesUI::CIntelligentRulesCtrl</name>
    <message>
        <source>The current operation may affect the already running task. Please confirm whether to modify it?</source>
        <translation>Dieser Vorgang kann die bereits laufende Aufgabe beeinflussen. Soll sie wirklich geändert werden?</translation>
    </message>
    <message>
        <source>Do you want to exit the current configuration?</source>
        <translation>Soll die aktuelle Konfiguration verlassen werden?</translation>
    </message>
    <message>
        <source>Prompt</source>
        <translation>Rückfrage</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Nothing was saved. %1</source>
        <translation>Es wurde nichts gespeichert. %1</translation>
    </message>
    <message>
        <source>The documents are too long.</source>
        <translation>Die Dokumente sind zu lang.</translation>
    </message>
    <message>
        <source>Undo: %1 (Ctrl+Z)</source>
        <translation>Rückgängig: %1 (Strg+Z)</translation>
    </message>
    <message>
        <source>Redo: %1 (Ctrl+Y)</source>
        <translation>Wiederholen: %1 (Strg+Y)</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Backspace: take the last point back</source>
        <translation>Rücktaste: letzten Punkt zurücknehmen</translation>
    </message>
    <message>
        <source>Enter: finish the figure, press the right button at the cross-hair, or let go</source>
        <translation>Eingabe: Figur abschließen, Rechtsklick am Fadenkreuz, oder loslassen</translation>
    </message>
    <message>
        <source>Escape: take all points back, then leave the drawing</source>
        <translation>Escape: alle Punkte zurücknehmen, dann das Zeichnen verlassen</translation>
    </message>
    <message>
        <source>Ctrl+Z: undo</source>
        <translation>Strg+Z: rückgängig</translation>
    </message>
    <message>
        <source>Ctrl+Y, Ctrl+Shift+Z: redo</source>
        <translation>Strg+Y, Strg+Umschalt+Z: wiederholen</translation>
    </message>
    <message>
        <source>Arrows: move what was taken last, else a cross-hair; with Shift ten times as far</source>
        <translation>Pfeile: bewegen, was zuletzt genommen wurde, sonst ein Fadenkreuz; mit Umschalt zehnmal so weit</translation>
    </message>
    <message>
        <source>Space: press at the cross-hair, take or let go of a handle</source>
        <translation>Leertaste: am Fadenkreuz klicken, einen Griff nehmen oder loslassen</translation>
    </message>
    <message>
        <source>Delete, or Shift and a press: remove a corner</source>
        <translation>Entf, oder Umschalt und ein Klick: eine Ecke entfernen</translation>
    </message>
    <message>
        <source>Ctrl+C, Ctrl+V: copy the entry, paste a copied one</source>
        <translation>Strg+C, Strg+V: Eintrag kopieren, kopierten einfügen</translation>
    </message>
    <message>
        <source>Ctrl+D: duplicate the entry</source>
        <translation>Strg+D: Eintrag duplizieren</translation>
    </message>
    <message>
        <source>Read-only: nothing can be changed here.</source>
        <translation>Nur lesen: Hier lässt sich nichts ändern.</translation>
    </message>
    <message>
        <source>Ctrl and a press: take the whole figure</source>
        <translation>Strg und ein Klick: die ganze Figur nehmen</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Shift+F10, Menu: what can be done with the entry whose button has the focus</source>
        <translation>Umschalt+F10, Menütaste: was mit dem Eintrag getan werden kann, dessen Schaltfläche den Fokus hat</translation>
    </message>
    <message>
        <source>Up, Down: one more or less in a field for whole numbers</source>
        <translation>Auf, Ab: eins mehr oder weniger in einem Feld für ganze Zahlen</translation>
    </message>
    <message>
        <source>Space, Enter on a title: fold and unfold the section</source>
        <translation>Leertaste, Eingabe auf einem Titel: Abschnitt ein- und ausklappen</translation>
    </message>
    <message>
        <source>Checks everything and hands it to the device</source>
        <translation>Prüft alles und übergibt es dem Gerät</translation>
    </message>
    <message>
        <source>Leaves without saving</source>
        <translation>Verlässt die Seite ohne zu speichern</translation>
    </message>
</context>
<context>
    <name>IntelligentRulesUI::CIntelligentRulesWidget</name>
    <message>
        <source>IntelligentRules</source>
        <translation>Intelligente Regeln</translation>
    </message>
    <message>
        <source>IntelligentRulesDetail</source>
        <translation>Konfiguration der intelligenten Regeln eines Kanals</translation>
    </message>
</context>
<context>
    <name>IntelligentRulesUI::EditCommands</name>
    <message>
        <source>Paste %1</source>
        <translation>%1 einfügen</translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation>%1 duplizieren</translation>
    </message>
    <message>
        <source>Nothing was added: there would be too much to be edited.</source>
        <translation>Nichts wurde hinzugefügt: Es wäre zu viel, um bearbeitet zu werden.</translation>
    </message>
</context>
<context>
    <name>IntelligentRulesUI::EditHistory</name>
    <message>
        <source>Draw %1</source>
        <translation>%1 zeichnen</translation>
    </message>
    <message>
        <source>Leave drawing</source>
        <translation>Zeichnen verlassen</translation>
    </message>
</context>
<context>
    <name>IntelligentRulesUI::StepTitle</name>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>%1 hinzufügen</translation>
    </message>
    <message>
        <source>Redraw %1</source>
        <translation>%1 neu zeichnen</translation>
    </message>
    <message>
        <source>Correct %1</source>
        <translation>%1 korrigieren</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>%1 löschen</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>%1 umbenennen</translation>
    </message>
    <message>
        <source>Switch %1</source>
        <translation>%1 umschalten</translation>
    </message>
</context>
<context>
    <name>IntelligentRulesUI::EntryMenu</name>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>There is no row for a name here.</source>
        <translation>Hier gibt es keine Zeile für einen Namen.</translation>
    </message>
    <message>
        <source>Redraw</source>
        <translation>Neu zeichnen</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>IntelligentRulesUI::SaveCheck</name>
    <message>
        <source>Duplicate rule name exists</source>
        <translation>Ein Regelname kommt doppelt vor</translation>
    </message>
    <message>
        <source>Please select at least one rule</source>
        <translation>Bitte mindestens eine Regel auswählen</translation>
    </message>
</context>
<context>
    <name>Json</name>
    <message>
        <source>The document is empty.</source>
        <translation>Das Dokument ist leer.</translation>
    </message>
    <message>
        <source>The document root must not be followed by other values.</source>
        <translation>Nach dem Wert des Dokuments darf kein weiterer folgen.</translation>
    </message>
    <message>
        <source>Missing a name for object member.</source>
        <translation>Einem Mitglied des Objekts fehlt der Name.</translation>
    </message>
    <message>
        <source>Missing a colon after a name of object member.</source>
        <translation>Nach dem Namen eines Mitglieds fehlt ein Doppelpunkt.</translation>
    </message>
    <message>
        <source>Missing a comma or &apos;}&apos; after an object member.</source>
        <translation>Nach einem Mitglied des Objekts fehlt ein Komma oder &apos;}&apos;.</translation>
    </message>
    <message>
        <source>Missing a comma or &apos;]&apos; after an array element.</source>
        <translation>Nach einem Element der Liste fehlt ein Komma oder &apos;]&apos;.</translation>
    </message>
    <message>
        <source>Incorrect hex digit after \u escape in string.</source>
        <translation>Im Text steht nach \u keine hexadezimale Ziffer.</translation>
    </message>
    <message>
        <source>The surrogate pair in string is invalid.</source>
        <translation>Das Surrogatpaar im Text ist ungültig.</translation>
    </message>
    <message>
        <source>Invalid escape character in string.</source>
        <translation>Im Text steht nach \ ein ungültiges Zeichen.</translation>
    </message>
    <message>
        <source>Missing a closing quotation mark in string.</source>
        <translation>Dem Text fehlt das schließende Anführungszeichen.</translation>
    </message>
    <message>
        <source>Miss fraction part in number.</source>
        <translation>Der Zahl fehlen die Nachkommastellen.</translation>
    </message>
    <message>
        <source>Miss exponent in number.</source>
        <translation>Der Zahl fehlt der Exponent.</translation>
    </message>
    <message>
        <source>Invalid value.</source>
        <translation>Ungültiger Wert.</translation>
    </message>
    <message>
        <source>The document is nested too deeply.</source>
        <translation>Das Dokument ist zu tief verschachtelt.</translation>
    </message>
    <message>
        <source>The number is too large.</source>
        <translation>Die Zahl ist zu groß.</translation>
    </message>
    <message>
        <source>The text holds half of a surrogate pair.</source>
        <translation>Der Text enthält ein halbes Surrogatpaar.</translation>
    </message>
    <message>
        <source>The text is too long.</source>
        <translation>Der Text ist zu lang.</translation>
    </message>
    <message>
        <source>The text is not valid UTF-8.</source>
        <translation>Der Text ist kein gültiges UTF-8.</translation>
    </message>
    <message>
        <source>The text goes on after a NUL.</source>
        <translation>Nach einem NUL geht der Text weiter.</translation>
    </message>
</context>
<context>
    <name>KQMessageBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
</context>
<context>
    <name>LanesScene</name>
    <message>
        <source>Lane</source>
        <translation>Fahrspur</translation>
    </message>
    <message>
        <source>Lane number</source>
        <translation>Spurnummer</translation>
    </message>
    <message>
        <source>Left lane line</source>
        <translation>Linke Linie</translation>
    </message>
    <message>
        <source>Right lane line</source>
        <translation>Rechte Linie</translation>
    </message>
</context>
<context>
    <name>LanesTemplate</name>
    <message>
        <source>Lanes configuration</source>
        <translation>Fahrspurkonfiguration</translation>
    </message>
    <message>
        <source>lanes</source>
        <translation>Fahrspur</translation>
    </message>
    <message>
        <source>Lanes num</source>
        <translation>Spurnummer</translation>
    </message>
    <message>
        <source>White solid</source>
        <translation>Weiß, durchgezogen</translation>
    </message>
    <message>
        <source>White dotted</source>
        <translation>Weiß, gestrichelt</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>left line</source>
        <translation>Linke Linie</translation>
    </message>
    <message>
        <source>right line</source>
        <translation>Rechte Linie</translation>
    </message>
</context>
<context>
    <name>Misfit</name>
    <message>
        <source>The configuration has %1 here, which this row cannot show. It is saved as it is until the row is edited.</source>
        <translation>Die Konfiguration hat hier %1, was diese Zeile nicht anzeigen kann. Es wird unverändert gespeichert, bis die Zeile bearbeitet wird.</translation>
    </message>
    <message>
        <source>The configuration has %1 here, which this row cannot show. It is not saved as it is.</source>
        <translation>Die Konfiguration hat hier %1, was diese Zeile nicht anzeigen kann. Es wird nicht so gespeichert, wie es ist.</translation>
    </message>
</context>
<context>
    <name>NumberTip</name>
    <message>
        <source>Whole numbers</source>
        <translation>Ganze Zahlen</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Whole number</source>
        <translation>Ganze Zahl</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>mindestens %1</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>höchstens %1</translation>
    </message>
    <message>
        <source>unit: %1</source>
        <translation>Einheit: %1</translation>
    </message>
    <message>
        <source>What was typed is not taken here. %1</source>
        <translation>Diese Eingabe wird hier nicht angenommen. %1</translation>
    </message>
</context>
<context>
    <name>PictureSource</name>
    <message>
        <source>The picture&apos;s size, %1 x %2, is out of range.</source>
        <translation>Die Größe des Bildes, %1 x %2, liegt außerhalb des Erlaubten.</translation>
    </message>
</context>
<context>
    <name>PolygonDraw</name>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
</context>
<context>
    <name>QRtspVideoWnd</name>
    <message>
        <source>No signal</source>
        <translation>Kein Signal</translation>
    </message>
    <message>
        <source>Last picture: %1</source>
        <translation>Letztes Bild: %1</translation>
    </message>
    <message>
        <source>Try again now</source>
        <translation>Jetzt erneut versuchen</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Kein Bild</translation>
    </message>
    <message>
        <source>Connecting ...</source>
        <translation>Verbinden ...</translation>
    </message>
    <message>
        <source>The picture is held still</source>
        <translation>Das Bild ist angehalten</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Beendet</translation>
    </message>
    <message>
        <source>Save snapshot</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.bmp)</source>
        <translation>Bilder (*.png *.jpg *.bmp)</translation>
    </message>
    <message>
        <source>The picture cannot be saved: %1</source>
        <translation>Das Bild kann nicht gespeichert werden: %1</translation>
    </message>
</context>
<context>
    <name>RowEdit</name>
    <message>
        <source>The text is too long to be edited here.</source>
        <translation>Der Text ist zu lang, um hier bearbeitet zu werden.</translation>
    </message>
</context>
<context>
    <name>RuleData</name>
    <message>
        <source>Rule</source>
        <translation>Reg.</translation>
    </message>
    <message>
        <source>Please add %1 %2.</source>
        <translation>Bitte hinzufügen: %1 × %2.</translation>
    </message>
    <message>
        <source>Please add %1-%2 %3.</source>
        <translation>Bitte hinzufügen: %1-%2 × %3.</translation>
    </message>
    <message>
        <source>%1:%2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The minimum value cannot be empty.</source>
        <translation>Der Mindestwert darf nicht leer sein.</translation>
    </message>
    <message>
        <source>The maximum value cannot be empty.</source>
        <translation>Der Höchstwert darf nicht leer sein.</translation>
    </message>
    <message>
        <source>Please finish drawing %1.</source>
        <translation>Bitte %1 fertig zeichnen.</translation>
    </message>
    <message>
        <source>Please draw %1 %2.</source>
        <translation>Bitte zeichnen: %1 × %2.</translation>
    </message>
    <message>
        <source>Please draw %1-%2 %3.</source>
        <translation>Bitte zeichnen: %1-%2 × %3.</translation>
    </message>
    <message>
        <source>greater than</source>
        <translation>größer als</translation>
    </message>
    <message>
        <source>less than</source>
        <translation>kleiner als</translation>
    </message>
    <message>
        <source>equal</source>
        <translation>gleich</translation>
    </message>
    <message>
        <source>greater than or equal</source>
        <translation>größer als oder gleich</translation>
    </message>
    <message>
        <source>less than or equal</source>
        <translation>kleiner als oder gleich</translation>
    </message>
    <message>
        <source>%1 must be %2 to %3</source>
        <translation>%1 muss %2 %3 sein</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Zone</translation>
    </message>
    <message>
        <source>Lanes</source>
        <translation>Spur</translation>
    </message>
    <message>
        <source>Only %1 is saved: the template has room for one.</source>
        <translation>Nur %1 wird gespeichert: Die Vorlage hat Platz für eines.</translation>
    </message>
</context>
<context>
    <name>RuleParser</name>
    <message>
        <source>The template is not valid JSON.</source>
        <translation>Die Vorlage ist kein gültiges JSON.</translation>
    </message>
    <message>
        <source>The template has no &quot;configDescription&quot;.</source>
        <translation>In der Vorlage fehlt &quot;configDescription&quot;.</translation>
    </message>
    <message>
        <source>The configuration is not valid JSON.</source>
        <translation>Die Konfiguration ist kein gültiges JSON.</translation>
    </message>
    <message>
        <source>The template has no &quot;configTemplate&quot; to write into.</source>
        <translation>In der Vorlage fehlt &quot;configTemplate&quot;, in das geschrieben wird.</translation>
    </message>
    <message>
        <source>The configuration is too long.</source>
        <translation>Die Konfiguration ist zu lang.</translation>
    </message>
    <message>
        <source>The template has no place &quot;%1&quot; for what is set under &quot;%2&quot;.</source>
        <translation>In der Vorlage fehlt der Platz &quot;%1&quot; für das, was unter &quot;%2&quot; eingestellt ist.</translation>
    </message>
    <message>
        <source>The template has more than %1 attributes or %2 choices in one section.</source>
        <translation>Ein Abschnitt der Vorlage hat mehr als %1 Attribute oder %2 Auswahlwerte.</translation>
    </message>
    <message>
        <source>The configuration has %1 entries under &quot;%2&quot;; at most %3 can be edited.</source>
        <translation>Die Konfiguration hat %1 Einträge unter &quot;%2&quot;; höchstens %3 können bearbeitet werden.</translation>
    </message>
    <message>
        <source>The attributes read too much of what the configuration has under &quot;%1&quot;.</source>
        <translation>Die Attribute lesen zu viel von dem, was die Konfiguration unter &quot;%1&quot; hat.</translation>
    </message>
</context>
<context>
    <name>RuleScene</name>
    <message>
        <source>Add rule</source>
        <translation>Regel hinzufügen</translation>
    </message>
    <message>
        <source>Rule configuration</source>
        <translation>Regelkonfiguration</translation>
    </message>
    <message>
        <source>Rule name</source>
        <translation>Regelname</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>At least one Rule!</source>
        <translation>Mindestens eine Regel muss bleiben!</translation>
    </message>
</context>
<context>
    <name>SampleStreet</name>
    <message>
        <source>Sample camera</source>
        <translation>Beispielkamera</translation>
    </message>
</context>
<context>
    <name>SaveNotices</name>
    <message>
        <source>%1 is not saved as it was read.</source>
        <translation>%1 wird nicht so gespeichert, wie es gelesen wurde.</translation>
    </message>
    <message>
        <source>%1 is not saved: no attribute names it.</source>
        <translation>%1 wird nicht gespeichert: Kein Attribut nennt es.</translation>
    </message>
    <message>
        <source>%1 cannot be shown; it is saved as it was read until it is edited.</source>
        <translation>%1 kann nicht angezeigt werden; es wird wie gelesen gespeichert, bis es bearbeitet wird.</translation>
    </message>
    <message>
        <source>%1 is not saved: the template has no place &quot;%2&quot; for it.</source>
        <translation>%1 wird nicht gespeichert: In der Vorlage fehlt der Platz &quot;%2&quot; dafür.</translation>
    </message>
    <message>
        <source>%1 is not saved: it has no type that a row can have.</source>
        <translation>%1 wird nicht gespeichert: Es hat keinen Typ, den eine Zeile haben kann.</translation>
    </message>
    <message>
        <source>%1 is not saved: the template has something else in its place &quot;%2&quot;.</source>
        <translation>%1 wird nicht gespeichert: An seinem Platz &quot;%2&quot; steht in der Vorlage etwas anderes.</translation>
    </message>
    <message>
        <source>%1 is not saved of areas that are written as lists of points.</source>
        <translation>%1 wird bei Flächen, die als Punktlisten geschrieben werden, nicht gespeichert.</translation>
    </message>
    <message>
        <source>What is no entry under %1 is not saved.</source>
        <translation>Was unter %1 kein Eintrag ist, wird nicht gespeichert.</translation>
    </message>
    <message>
        <source>%1 was left out of the copy: there is no such attribute here.</source>
        <translation>%1 fehlt in der Kopie: Ein solches Attribut gibt es hier nicht.</translation>
    </message>
    <message>
        <source>%1 has its default in the copy: the value is not possible here.</source>
        <translation>%1 hat in der Kopie den Vorgabewert: Der kopierte Wert ist hier nicht möglich.</translation>
    </message>
    <message>
        <source>%1 were left out of the copy: there are no such attributes here.</source>
        <translation>%1 fehlen in der Kopie: Solche Attribute gibt es hier nicht.</translation>
    </message>
</context>
<context>
    <name>SceneWidgets</name>
    <message>
        <source>Redraw</source>
        <translation>Neu zeichnen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Redraw %1</source>
        <translation>%1 neu zeichnen</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>%1 löschen</translation>
    </message>
</context>
<context>
    <name>StatisticsDirection</name>
    <message>
        <source>Detection direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>Von links nach rechts</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Von rechts nach links</translation>
    </message>
</context>
<context>
    <name>StillPicture</name>
    <message>
        <source>&quot;%1&quot; is not a picture that can be read.</source>
        <translation>&quot;%1&quot; ist kein Bild, das gelesen werden kann.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a picture of a kind that is not supported: %2.</source>
        <translation>&quot;%1&quot; ist ein Bild einer Art, die nicht unterstützt wird: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged: %2.</source>
        <translation>&quot;%1&quot; ist beschädigt: %2.</translation>
    </message>
</context>
<context>
    <name>StreamDecoder</name>
    <message>
        <source>What comes cannot be decoded.</source>
        <translation>Was kommt, kann nicht decodiert werden.</translation>
    </message>
    <message>
        <source>The coding of the video is not known.</source>
        <translation>Die Codierung des Videos ist nicht bekannt.</translation>
    </message>
    <message>
        <source>Video coded as %1 cannot be decoded.</source>
        <translation>Als %1 codiertes Video kann nicht decodiert werden.</translation>
    </message>
    <message>
        <source>There is no picture in it that can be decoded.</source>
        <translation>Es enthält kein Bild, das decodiert werden kann.</translation>
    </message>
    <message>
        <source>Its pictures cannot be converted.</source>
        <translation>Seine Bilder können nicht umgewandelt werden.</translation>
    </message>
</context>
<context>
    <name>StreamErrors</name>
    <message>
        <source>The connection is refused.</source>
        <translation>Die Verbindung wird abgelehnt.</translation>
    </message>
    <message>
        <source>The host cannot be reached.</source>
        <translation>Der Rechner ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>Das Netz ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>The connection cannot be made, or broke.</source>
        <translation>Die Verbindung kommt nicht zustande oder brach ab.</translation>
    </message>
    <message>
        <source>The connection was lost.</source>
        <translation>Die Verbindung ging verloren.</translation>
    </message>
    <message>
        <source>There is no answer, or nothing comes any more.</source>
        <translation>Es gibt keine Antwort, oder es kommt nichts mehr.</translation>
    </message>
    <message>
        <source>The stream was ended by the other side.</source>
        <translation>Die Gegenseite hat den Strom beendet.</translation>
    </message>
    <message>
        <source>The user name or the password is not accepted.</source>
        <translation>Benutzername oder Passwort wird nicht angenommen.</translation>
    </message>
    <message>
        <source>Access is forbidden.</source>
        <translation>Der Zugriff ist verboten.</translation>
    </message>
    <message>
        <source>The camera sends its viewers to another server. It is not followed: user name and password would go along.</source>
        <translation>Die Kamera verweist auf einen anderen Server. Dem wird nicht gefolgt: Benutzername und Passwort gingen mit.</translation>
    </message>
    <message>
        <source>There is no stream of this name.</source>
        <translation>Es gibt keinen Strom dieses Namens.</translation>
    </message>
    <message>
        <source>The request is refused.</source>
        <translation>Die Anfrage wird abgelehnt.</translation>
    </message>
    <message>
        <source>The server has a fault of its own.</source>
        <translation>Der Server hat selbst einen Fehler.</translation>
    </message>
    <message>
        <source>Neither TCP nor UDP is accepted.</source>
        <translation>Weder TCP noch UDP wird angenommen.</translation>
    </message>
    <message>
        <source>There is no video in it.</source>
        <translation>Es enthält kein Video.</translation>
    </message>
    <message>
        <source>It is no video that can be read.</source>
        <translation>Es ist kein Video, das gelesen werden kann.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Eine solche Datei gibt es nicht.</translation>
    </message>
    <message>
        <source>It may not be read.</source>
        <translation>Es darf nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The address, or the login in it, is too long.</source>
        <translation>Die Adresse oder die Anmeldung darin ist zu lang.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>Es ist ein Ordner.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Der Speicher reicht nicht.</translation>
    </message>
    <message>
        <source>It cannot be played: %1.</source>
        <translation>Es kann nicht wiedergegeben werden: %1.</translation>
    </message>
</context>
<context>
    <name>StreamInput</name>
    <message>
        <source>A web server answers there, not a camera&apos;s RTSP.</source>
        <translation>Dort antwortet ein Webserver, nicht das RTSP einer Kamera.</translation>
    </message>
</context>
<context>
    <name>StreamLibrary</name>
    <message>
        <source>The library that plays streams and video files cannot be loaded.</source>
        <translation>Die Bibliothek, die Ströme und Videodateien wiedergibt, kann nicht geladen werden.</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::ChannelSources</name>
    <message>
        <source>The address is empty.</source>
        <translation>Die Adresse ist leer.</translation>
    </message>
    <message>
        <source>Only rtsp and rtsps addresses and files can be played, not %1.</source>
        <translation>Nur Adressen mit rtsp und rtsps und Dateien können wiedergegeben werden, nicht %1.</translation>
    </message>
    <message>
        <source>Only rtsp and rtsps addresses of a client can be played.</source>
        <translation>Von einem Client können nur Adressen mit rtsp und rtsps wiedergegeben werden.</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::PictureStrip</name>
    <message>
        <source>Codec: %1</source>
        <translation>Codec: %1</translation>
    </message>
    <message>
        <source>Size: %1 x %2</source>
        <translation>Größe: %1 x %2</translation>
    </message>
    <message>
        <source>Pictures a second: %1</source>
        <translation>Bilder je Sekunde: %1</translation>
    </message>
    <message>
        <source>Dropped: %1</source>
        <translation>Verworfen: %1</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Hold the picture still</source>
        <translation>Das Bild anhalten</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>Save the picture as a file</source>
        <translation>Das Bild als Datei speichern</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Show facts about the picture</source>
        <translation>Angaben zum Bild zeigen</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::StreamSource</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>Der Speicher reicht nicht.</translation>
    </message>
    <message>
        <source>Trying again ...</source>
        <translation>Neuer Versuch ...</translation>
    </message>
    <message>
        <source>It is tried again only when you ask for it.</source>
        <translation>Erst auf Wunsch wird es erneut versucht.</translation>
    </message>
    <message>
        <source>Next try at %1</source>
        <translation>Nächster Versuch um %1</translation>
    </message>
</context>
<context>
    <name>VehicleLaneDraw</name>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>the old file stands</source>
        <translation>die alte Datei bleibt</translation>
    </message>
    <message>
        <source>nothing was written</source>
        <translation>es wurde nichts geschrieben</translation>
    </message>
    <message>
        <source>%1: it is no regular file, and is not replaced</source>
        <translation>%1: ist keine gewöhnliche Datei und wird nicht ersetzt</translation>
    </message>
</context>
<context>
    <name>ControlTabel</name>
    <message>
        <source>%1, minimum</source>
        <translation>%1, Minimum</translation>
    </message>
    <message>
        <source>%1, maximum</source>
        <translation>%1, Maximum</translation>
    </message>
    <message>
        <source>On or off</source>
        <translation>Zum Ein- und Ausschalten</translation>
    </message>
    <message>
        <source>Up to %1 characters</source>
        <translation>Höchstens %1 Zeichen</translation>
    </message>
</context>
<context>
    <name>DrawItemButton</name>
    <message>
        <source>Enable %1</source>
        <translation>%1 aktivieren</translation>
    </message>
</context>
<context>
    <name>PictureWords</name>
    <message>
        <source>Nothing is drawn.</source>
        <translation>Nichts ist gezeichnet.</translation>
    </message>
    <message>
        <source>Cross-hair at %1, %2.</source>
        <translation>Fadenkreuz bei %1, %2.</translation>
    </message>
    <message>
        <source>%1, points: %2</source>
        <translation>%1, Punkte: %2</translation>
    </message>
    <message>
        <source>%1, being drawn, points: %2</source>
        <translation>%1, wird gezeichnet, Punkte: %2</translation>
    </message>
    <message>
        <source>; </source>
        <comment>between figures</comment>
        <translation>; </translation>
    </message>
    <message>
        <source>%1.</source>
        <comment>all figures</comment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>SceneTitleBar</name>
    <message>
        <source>Folds and unfolds the section</source>
        <translation>Klappt den Abschnitt auf und zu</translation>
    </message>
</context>
</TS>
