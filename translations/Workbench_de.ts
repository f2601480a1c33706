<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Autosave</name>
    <message>
        <source>What you do is not kept from a crash: %1</source>
        <translation>Was Sie tun, ist bei einem Absturz verloren: %1</translation>
    </message>
    <message>
        <source>The workbench ended unexpectedly (%1). What was not saved yet of channel &quot;%2&quot;, %3, can be restored.</source>
        <translation>Die Werkbank endete unerwartet (%1). Was von Kanal &quot;%2&quot;, %3, noch nicht gespeichert war, kann wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>The workbench ended unexpectedly (%1). What was not saved yet can be restored.</source>
        <translation>Die Werkbank endete unerwartet (%1). Was noch nicht gespeichert war, kann wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>template or configuration are not what they were when the work began.</source>
        <translation>Vorlage oder Konfiguration sind nicht mehr, was sie zu Beginn der Arbeit waren.</translation>
    </message>
    <message>
        <source>What was done in this window since is lost then. Restore?</source>
        <translation>Was seither in diesem Fenster getan wurde, geht dann verloren. Wiederherstellen?</translation>
    </message>
    <message>
        <source>Not all could be restored: %1</source>
        <translation>Nicht alles konnte wiederhergestellt werden: %1</translation>
    </message>
    <message>
        <source>What was restored could not be written to a file again.</source>
        <translation>Was wiederhergestellt wurde, konnte nicht wieder in eine Datei geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>AutosaveFile</name>
    <message>
        <source>%1: nothing can be written there</source>
        <translation>%1: dort kann nichts geschrieben werden</translation>
    </message>
</context>
<context>
    <name>BusyReading</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>CloseQuestion</name>
    <message>
        <source>What was edited since the last save is lost otherwise. Save it?</source>
        <translation>Was seit dem letzten Speichern bearbeitet wurde, geht sonst verloren. Speichern?</translation>
    </message>
    <message>
        <source>What was saved is in no file, and is lost otherwise. Save it?</source>
        <translation>Was gespeichert wurde, steht in keiner Datei und geht sonst verloren. Speichern?</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Template document to load.</source>
        <translation>Vorlage, die geladen wird.</translation>
    </message>
    <message>
        <source>Configuration document to load, or a result with one; none is an empty one.</source>
        <translation>Konfiguration, die geladen wird, oder ein Ergebnis mit einer; ohne sie eine leere.</translation>
    </message>
    <message>
        <source>Address or file that gives the channel&apos;s picture, in place of the sample camera: an RTSP address, a video, a still picture.</source>
        <translation>Adresse oder Datei, die anstelle der Beispielkamera das Bild des Kanals gibt: eine RTSP-Adresse, ein Video, ein Standbild.</translation>
    </message>
    <message>
        <source>The same as --source.</source>
        <translation>Dasselbe wie --source.</translation>
    </message>
    <message>
        <source>Channel id.</source>
        <translation>Kennung des Kanals.</translation>
    </message>
    <message>
        <source>Channel name.</source>
        <translation>Name des Kanals.</translation>
    </message>
    <message>
        <source>Algorithm id.</source>
        <translation>Kennung des Algorithmus.</translation>
    </message>
    <message>
        <source>Algorithm code.</source>
        <translation>Code des Algorithmus.</translation>
    </message>
    <message>
        <source>Plug-in to load in place of the one that comes with the program.</source>
        <translation>Modul, das anstelle des mitgelieferten geladen wird.</translation>
    </message>
    <message>
        <source>Write the object of the last result message here; leaving keeps what was saved.</source>
        <translation>Hierhin wird das Objekt der letzten Ergebnismeldung geschrieben; beim Verlassen bleibt, was gespeichert war.</translation>
    </message>
    <message>
        <source>Save a picture of the window here before it closes.</source>
        <translation>Hierhin wird ein Bild des Fensters gespeichert, bevor es schließt.</translation>
    </message>
    <message>
        <source>Do what this session says, then close.</source>
        <translation>Tun, was diese Sitzung sagt, dann schließen.</translation>
    </message>
    <message>
        <source>Write what the operator does to this session.</source>
        <translation>In diese Sitzung schreiben, was getan wird.</translation>
    </message>
    <message>
        <source>Stand-alone host of the rules window.
Exit status: 0 saved or closed, 1 left without saving what was changed since, 2 unusable arguments or files, 3 a replayed session failed, or did not come to its end.</source>
        <translation>Eigenständiger Rahmen des Regelfensters.
Endstatus: 0 gespeichert oder geschlossen, 1 verlassen, ohne zu speichern, was seither geändert wurde, 2 unbrauchbare Argumente oder Dateien, 3 eine abgespielte Sitzung schlug fehl oder kam nicht an ihr Ende.</translation>
    </message>
    <message>
        <source>Address or file that gives this channel&apos;s picture; may be repeated.</source>
        <translation>Adresse oder Datei, die das Bild dieses Kanals gibt; auch mehrmals.</translation>
    </message>
    <message>
        <source>Algorithm type, a number.</source>
        <translation>Art des Algorithmus, eine Zahl.</translation>
    </message>
    <message>
        <source>Language of all texts, in place of the desktop&apos;s: de, zh_CN or en.</source>
        <translation>Sprache aller Texte anstelle der des Schreibtischs: de, zh_CN oder en.</translation>
    </message>
    <message>
        <source>Let the operator select rules, not edit them.</source>
        <translation>Regeln auswählen lassen, nicht bearbeiten.</translation>
    </message>
    <message>
        <source>Pass the member &quot;editable&quot;. Its presence locks the window, whatever its value, unless selection mode is on.</source>
        <translation>Das Mitglied &quot;editable&quot; mitgeben. Ist es da, sperrt es das Fenster, gleich mit welchem Wert, außer im Auswahlmodus.</translation>
    </message>
    <message>
        <source>Unexpected argument: %1</source>
        <translation>Unerwartetes Argument: %1</translation>
    </message>
    <message>
        <source>--%1 takes the name of a file</source>
        <translation>--%1 verlangt den Namen einer Datei</translation>
    </message>
    <message>
        <source>--%1 takes ID=ADDRESS, not &quot;%2&quot;</source>
        <translation>--%1 verlangt ID=ADDRESS, nicht &quot;%2&quot;</translation>
    </message>
    <message>
        <source>--%1 takes a language as &quot;de&quot;, not &quot;%2&quot;</source>
        <translation>--%1 verlangt eine Sprache wie &quot;de&quot;, nicht &quot;%2&quot;</translation>
    </message>
    <message>
        <source>--%1 takes a number, not &quot;%2&quot;</source>
        <translation>--%1 verlangt eine Zahl, nicht &quot;%2&quot;</translation>
    </message>
    <message>
        <source>--%1 takes true or false, not &quot;%2&quot;</source>
        <translation>--%1 verlangt true oder false, nicht &quot;%2&quot;</translation>
    </message>
    <message>
        <source>--%1 would replace a file that is used already: %2</source>
        <translation>--%1 würde eine Datei ersetzen, die schon verwendet wird: %2</translation>
    </message>
    <message>
        <source>Colours of the windows, light or dark, in place of the desktop&apos;s.</source>
        <translation>Farben der Fenster, light oder dark, anstelle der des Schreibtischs.</translation>
    </message>
    <message>
        <source>--%1 takes light or dark, not &quot;%2&quot;</source>
        <translation>--%1 verlangt light oder dark, nicht &quot;%2&quot;</translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>%1: it is no file</source>
        <translation>%1: ist keine Datei</translation>
    </message>
    <message>
        <source>%1: it is longer than 128 MB</source>
        <translation>%1: ist länger als 128 MB</translation>
    </message>
</context>
<context>
    <name>DocumentOpener</name>
    <message>
        <source>Open &amp;template...</source>
        <translation>&amp;Vorlage öffnen...</translation>
    </message>
    <message>
        <source>Ctrl+T</source>
        <translation>Ctrl+T</translation>
    </message>
    <message>
        <source>Open &amp;configuration...</source>
        <translation>&amp;Konfiguration öffnen...</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Open an e&amp;xample</source>
        <translation>Be&amp;ispiel öffnen</translation>
    </message>
    <message>
        <source>Recent &amp;documents</source>
        <translation>Zuletzt verwendete &amp;Dokumente</translation>
    </message>
    <message>
        <source>&amp;Load again</source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message>
        <source>Open template</source>
        <translation>Vorlage öffnen</translation>
    </message>
    <message>
        <source>Open configuration</source>
        <translation>Konfiguration öffnen</translation>
    </message>
    <message>
        <source>Reading ...</source>
        <translation>Wird gelesen ...</translation>
    </message>
    <message>
        <source>Open a template first</source>
        <translation>Zuerst eine Vorlage öffnen</translation>
    </message>
    <message>
        <source>Nothing can be opened before all is done again</source>
        <translation>Bevor alles wiederholt ist, kann nichts geöffnet werden</translation>
    </message>
</context>
<context>
    <name>DropTarget</name>
    <message>
        <source>Nothing was opened: drop a template, a configuration and a picture at once, but one of each at most.</source>
        <translation>Nichts wurde geöffnet: Eine Vorlage, eine Konfiguration und ein Bild können zugleich abgelegt werden, aber höchstens je eines davon.</translation>
    </message>
</context>
<context>
    <name>Examples</name>
    <message>
        <source>Perimeter</source>
        <translation>Gelände</translation>
    </message>
    <message>
        <source>Trip wire</source>
        <translation>Stolperdraht</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Verkehr</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Lane calibration</source>
        <translation>Fahrspurkalibrierung</translation>
    </message>
    <message>
        <source>Scene calibration</source>
        <translation>Szenenkalibrierung</translation>
    </message>
    <message>
        <source>Fight calibration</source>
        <translation>Kalibrierung der Schlägereierkennung</translation>
    </message>
</context>
<context>
    <name>FirstPage</name>
    <message>
        <source>Open a template...</source>
        <translation>Vorlage öffnen...</translation>
    </message>
    <message>
        <source>Open an example</source>
        <translation>Beispiel öffnen</translation>
    </message>
    <message>
        <source>This cannot be used:
%1</source>
        <translation>Das kann nicht verwendet werden:
%1</translation>
    </message>
</context>
<context>
    <name>MenuHand</name>
    <message>
        <source>there is no &quot;%1&quot; in the menu</source>
        <translation>im Menü gibt es kein &quot;%1&quot;</translation>
    </message>
    <message>
        <source>it is disabled: %1</source>
        <translation>es ist gesperrt: %1</translation>
    </message>
    <message>
        <source>it has no menu now</source>
        <translation>es hat jetzt kein Menü</translation>
    </message>
</context>
<context>
    <name>MessageDock</name>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Addressed by</source>
        <translation>Adressiert durch</translation>
    </message>
    <message>
        <source>Select a message to read its JSON</source>
        <translation>Eine Meldung wählen, um ihr JSON zu lesen</translation>
    </message>
    <message>
        <source>host → module</source>
        <translation>Rahmen → Modul</translation>
    </message>
    <message>
        <source>module → host</source>
        <translation>Modul → Rahmen</translation>
    </message>
</context>
<context>
    <name>ModuleHost</name>
    <message>
        <source>%1: not a rules plug-in</source>
        <translation>%1: kein Regelmodul</translation>
    </message>
</context>
<context>
    <name>OperatorHand</name>
    <message>
        <source>there is no such widget</source>
        <translation>ein solches Element gibt es nicht</translation>
    </message>
    <message>
        <source>it is hidden</source>
        <translation>es ist verborgen</translation>
    </message>
    <message>
        <source>it is disabled</source>
        <translation>es ist gesperrt</translation>
    </message>
    <message>
        <source>it is covered; select its section first</source>
        <translation>es ist verdeckt; zuerst seinen Abschnitt auswählen</translation>
    </message>
    <message>
        <source>it cannot be edited</source>
        <translation>es kann nicht bearbeitet werden</translation>
    </message>
</context>
<context>
    <name>ParameterBlock</name>
    <message>
        <source>%1:1:1: the template has no &quot;configDescription&quot;</source>
        <translation>%1:1:1: in der Vorlage fehlt &quot;configDescription&quot;</translation>
    </message>
    <message>
        <source>%1:1:1: nothing was saved, so there is no configuration</source>
        <translation>%1:1:1: es wurde nichts gespeichert, also gibt es keine Konfiguration</translation>
    </message>
    <message>
        <source>%1: it is too long</source>
        <translation>%1: ist zu lang</translation>
    </message>
</context>
<context>
    <name>RestoreBar</name>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
</context>
<context>
    <name>RowHand</name>
    <message>
        <source>it has no option &quot;%1&quot;</source>
        <translation>es hat keinen Auswahlwert &quot;%1&quot;</translation>
    </message>
    <message>
        <source>it is no attribute row</source>
        <translation>es ist keine Attributzeile</translation>
    </message>
</context>
<context>
    <name>SessionExpectation</name>
    <message>
        <source>%1 is %2, not %3</source>
        <translation>%1 ist %2, nicht %3</translation>
    </message>
    <message>
        <source>the last box</source>
        <translation>die letzte Rückfrage</translation>
    </message>
    <message>
        <source>a message was posted</source>
        <translation>eine Meldung wurde gesendet</translation>
    </message>
    <message>
        <source>no message was posted; the last box said: %1</source>
        <translation>keine Meldung wurde gesendet; die letzte Rückfrage sagte: %1</translation>
    </message>
    <message>
        <source>no message was posted</source>
        <translation>keine Meldung wurde gesendet</translation>
    </message>
    <message>
        <source>the notices are %1, not %2</source>
        <translation>die Hinweise sind %1, nicht %2</translation>
    </message>
    <message>
        <source>the focus</source>
        <translation>der Fokus</translation>
    </message>
    <message>
        <source>there is no such section</source>
        <translation>einen solchen Abschnitt gibt es nicht</translation>
    </message>
    <message>
        <source>the hint</source>
        <translation>die Anleitung</translation>
    </message>
    <message>
        <source>the number of entries</source>
        <translation>die Zahl der Einträge</translation>
    </message>
    <message>
        <source>the current entry</source>
        <translation>der aktuelle Eintrag</translation>
    </message>
    <message>
        <source>there is no such row</source>
        <translation>eine solche Zeile gibt es nicht</translation>
    </message>
    <message>
        <source>the row&apos;s value</source>
        <translation>der Wert der Zeile</translation>
    </message>
    <message>
        <source>the row&apos;s visibility</source>
        <translation>die Sichtbarkeit der Zeile</translation>
    </message>
    <message>
        <source>the row&apos;s enabled state</source>
        <translation>die Bedienbarkeit der Zeile</translation>
    </message>
    <message>
        <source>the row&apos;s mark</source>
        <translation>die Markierung der Zeile</translation>
    </message>
</context>
<context>
    <name>SessionFile</name>
    <message>
        <source>%1: another recording is being written there</source>
        <translation>%1: dort wird schon eine andere Aufzeichnung geschrieben</translation>
    </message>
    <message>
        <source>%1: %2; nothing more is recorded</source>
        <translation>%1: %2; es wird nichts mehr aufgezeichnet</translation>
    </message>
</context>
<context>
    <name>SessionPlayer</name>
    <message>
        <source>there is no section &quot;%1&quot;</source>
        <translation>es gibt keinen Abschnitt &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no row &quot;%1&quot;</source>
        <translation>es gibt keine Zeile &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the position is not on the picture</source>
        <translation>die Stelle liegt nicht auf dem Bild</translation>
    </message>
    <message>
        <source>line %1: %2: %3</source>
        <translation>Zeile %1: %2: %3</translation>
    </message>
    <message>
        <source>there is no step &quot;%1&quot;</source>
        <translation>es gibt keinen Schritt &quot;%1&quot;</translation>
    </message>
    <message>
        <source>a question came up that the step does not answer: %1</source>
        <translation>es kam eine Frage, die der Schritt nicht beantwortet: %1</translation>
    </message>
    <message>
        <source>the window does not tell what it would refuse</source>
        <translation>das Fenster sagt nicht, was es ablehnen würde</translation>
    </message>
    <message>
        <source>no picture came: %1</source>
        <translation>es kam kein Bild: %1</translation>
    </message>
</context>
<context>
    <name>SessionRecorder</name>
    <message>
        <source>What was changed in &quot;%1&quot; cannot be recorded, nor restored after a crash.</source>
        <translation>Was in &quot;%1&quot; geändert wurde, kann nicht aufgezeichnet und nach einem Absturz nicht wiederhergestellt werden.</translation>
    </message>
</context>
<context>
    <name>SessionScript</name>
    <message>
        <source>no text member &quot;do&quot;</source>
        <translation>das Text-Mitglied &quot;do&quot; fehlt</translation>
    </message>
    <message>
        <source>%1: there is no step in it</source>
        <translation>%1: enthält keinen Schritt</translation>
    </message>
</context>
<context>
    <name>SourcesDialog</name>
    <message>
        <source>Re&amp;member user names and passwords</source>
        <translation>Benutzernamen und Passwörter &amp;merken</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Quellen</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>Address or file</source>
        <translation>Adresse oder Datei</translation>
    </message>
    <message>
        <source>They are written into a file that only you can read. Otherwise they have to be typed again after the workbench was closed.</source>
        <translation>Sie werden in eine Datei geschrieben, die nur Sie lesen können. Sonst müssen sie neu eingegeben werden, wenn die Werkbank geschlossen war.</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Edit address</source>
        <translation>Adresse &amp;bearbeiten</translation>
    </message>
    <message>
        <source>Choose &amp;file...</source>
        <translation>&amp;Datei wählen...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Picture or video</source>
        <translation>Bild oder Video</translation>
    </message>
    <message>
        <source>Row %1 needs a channel and an address.</source>
        <translation>Zeile %1 braucht einen Kanal und eine Adresse.</translation>
    </message>
    <message>
        <source>Row %1 has the channel of another row.</source>
        <translation>Zeile %1 hat den Kanal einer anderen Zeile.</translation>
    </message>
</context>
<context>
    <name>SourcesFile</name>
    <message>
        <source>%1: cannot be read as a whole; it has to be mended or removed before sources are kept again</source>
        <translation>%1: kann nicht ganz gelesen werden; muss berichtigt oder entfernt werden, bevor Quellen wieder gemerkt werden</translation>
    </message>
</context>
<context>
    <name>StepCheck</name>
    <message>
        <source>a position, [x, y]</source>
        <translation>eine Stelle, [x, y]</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true oder false</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>einen Text</translation>
    </message>
    <message>
        <source>a width and a height of 1 to 8192</source>
        <translation>eine Breite und eine Höhe von 1 bis 8192</translation>
    </message>
    <message>
        <source>&quot;left&quot; or &quot;right&quot;</source>
        <translation>&quot;left&quot; oder &quot;right&quot;</translation>
    </message>
    <message>
        <source>&quot;Ctrl&quot; or &quot;Shift&quot;</source>
        <translation>&quot;Ctrl&quot; oder &quot;Shift&quot;</translation>
    </message>
    <message>
        <source>one key with its modifiers</source>
        <translation>eine Taste mit ihren Zusatztasten</translation>
    </message>
    <message>
        <source>a number from 1 to 1000</source>
        <translation>eine Zahl von 1 bis 1000</translation>
    </message>
    <message>
        <source>&quot;picture&quot;</source>
        <translation>&quot;picture&quot;</translation>
    </message>
    <message>
        <source>an entry</source>
        <translation>einen Eintrag</translation>
    </message>
    <message>
        <source>members, or null</source>
        <translation>Mitglieder oder null</translation>
    </message>
    <message>
        <source>a row&apos;s key, &quot;picture&quot; or null</source>
        <translation>den Schlüssel einer Zeile, &quot;picture&quot; oder null</translation>
    </message>
    <message>
        <source>a text that is not empty, or null</source>
        <translation>einen Text, der nicht leer ist, oder null</translation>
    </message>
    <message>
        <source>there is no expectation &quot;%1&quot;</source>
        <translation>es gibt keine Erwartung &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is expected of a &quot;row&quot; only</source>
        <translation>&quot;%1&quot; wird nur von einer &quot;row&quot; erwartet</translation>
    </message>
    <message>
        <source>there is nothing to expect</source>
        <translation>es gibt nichts zu erwarten</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes %2</source>
        <translation>&quot;%1&quot; verlangt %2</translation>
    </message>
    <message>
        <source>there is no &quot;value&quot; to set</source>
        <translation>es gibt keinen &quot;value&quot; zu setzen</translation>
    </message>
    <message>
        <source>&quot;hover&quot; takes &quot;at&quot;, a position, or an &quot;entry&quot;</source>
        <translation>&quot;hover&quot; verlangt &quot;at&quot;, eine Stelle, oder einen &quot;entry&quot;</translation>
    </message>
    <message>
        <source>&quot;wait&quot; takes &quot;picture&quot;: true, or &quot;ms&quot; of 0 to 600000</source>
        <translation>&quot;wait&quot; verlangt &quot;picture&quot;: true oder &quot;ms&quot; von 0 bis 600000</translation>
    </message>
</context>
<context>
    <name>SupportFile</name>
    <message>
        <source>It cannot be packed: %1</source>
        <translation>Es kann nicht gepackt werden: %1</translation>
    </message>
    <message>
        <source>%1: the folder cannot be made</source>
        <translation>%1: Der Ordner kann nicht angelegt werden</translation>
    </message>
</context>
<context>
    <name>Workbench</name>
    <message>
        <source>there is no display; only --replay works without one</source>
        <translation>es gibt keine Anzeige; ohne sie geht nur --replay</translation>
    </message>
    <message>
        <source>the window was closed before the session&apos;s end</source>
        <translation>das Fenster wurde vor dem Ende der Sitzung geschlossen</translation>
    </message>
    <message>
        <source>%1: nothing was saved</source>
        <translation>%1: es wurde nichts gespeichert</translation>
    </message>
    <message>
        <source>Save a support file</source>
        <translation>Datei für den Support speichern</translation>
    </message>
    <message>
        <source>Archives (*.tar.gz)</source>
        <translation>Archive (*.tar.gz)</translation>
    </message>
    <message>
        <source>Saving ...</source>
        <translation>Wird gespeichert ...</translation>
    </message>
</context>
<context>
    <name>WorkbenchWindow</name>
    <message>
        <source>JSON documents (*.json);;All files (*)</source>
        <translation>JSON-Dokumente (*.json);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Rules workbench</source>
        <translation>Regelwerkbank</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Open &amp;picture or video...</source>
        <translation>&amp;Bild oder Video öffnen...</translation>
    </message>
    <message>
        <source>Ctrl+P</source>
        <translation>Ctrl+P</translation>
    </message>
    <message>
        <source>&amp;Sources...</source>
        <translation>&amp;Quellen...</translation>
    </message>
    <message>
        <source>R&amp;ecent sources</source>
        <translation>&amp;Zuletzt verwendete Quellen</translation>
    </message>
    <message>
        <source>Save &amp;result as...</source>
        <translation>Er&amp;gebnis speichern unter...</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Be&amp;enden</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Open a template to begin</source>
        <translation>Zum Beginnen eine Vorlage öffnen</translation>
    </message>
    <message>
        <source>Open picture or video</source>
        <translation>Bild oder Video öffnen</translation>
    </message>
    <message>
        <source>Pictures and videos (*.%1);;All files (*)</source>
        <translation>Bilder und Videos (*.%1);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Sample camera</source>
        <translation>Beispielkamera</translation>
    </message>
    <message>
        <source>Nothing has been saved in the rules window yet</source>
        <translation>Im Regelfenster wurde noch nichts gespeichert</translation>
    </message>
    <message>
        <source>Save result</source>
        <translation>Ergebnis speichern</translation>
    </message>
    <message>
        <source>The result would replace a file that is used: %1</source>
        <translation>Das Ergebnis würde eine Datei ersetzen, die verwendet wird: %1</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Left without saving what was changed since</source>
        <translation>Verlassen, ohne zu speichern, was seither geändert wurde</translation>
    </message>
    <message>
        <source>Left without saving</source>
        <translation>Verlassen, ohne zu speichern</translation>
    </message>
    <message>
        <source>%1, %2 px   %3, %4 of %5</source>
        <translation>%1, %2 px   %3, %4 von %5</translation>
    </message>
    <message>
        <source>The screenshot would replace a file that is used: %1</source>
        <translation>Das Bildschirmfoto würde eine Datei ersetzen, die verwendet wird: %1</translation>
    </message>
    <message>
        <source>St&amp;op the picture</source>
        <translation>Bild &amp;abschalten</translation>
    </message>
    <message>
        <source>S&amp;ave</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Ctrl+Shift+S</source>
        <translation>Ctrl+Shift+S</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Save a &amp;support file...</source>
        <translation>Datei für den &amp;Support speichern...</translation>
    </message>
    <message>
        <source>%1[*] - %2</source>
        <translation>%1[*] - %2</translation>
    </message>
    <message>
        <source>Loading ...</source>
        <translation>Wird geladen ...</translation>
    </message>
    <message>
        <source>Saved, but in no file yet: File, Save result as</source>
        <translation>Gespeichert, aber noch in keiner Datei: Datei, Ergebnis speichern unter</translation>
    </message>
    <message>
        <source>it cannot be loaded</source>
        <translation>kann nicht geladen werden</translation>
    </message>
</context>
</TS>
