<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>ChangesPage</name>
    <message>
        <source>PUT BACK</source>
        <translation>RESTAURER</translation>
    </message>
    <message>
        <source>PUT ALL BACK</source>
        <translation>TOUT RESTAURER</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>APPLIQUER</translation>
    </message>
    <message>
        <source>The device has %1 as it is shown.</source>
        <translation>L’appareil a %1 tel qu’il est affiché.</translation>
    </message>
    <message>
        <source>APPLY changes one key of %1:</source>
        <translation>APPLIQUER change une touche de %1 :</translation>
    </message>
    <message>
        <source>APPLY changes %1 keys of %2:</source>
        <translation>APPLIQUER change %1 touches de %2 :</translation>
    </message>
    <message>
        <source>ON THE DEVICE: %1</source>
        <translation>SUR L’APPAREIL : %1</translation>
    </message>
    <message>
        <source>Put back key %1</source>
        <translation>Restaurer la touche %1</translation>
    </message>
    <message>
        <source>Put back %1 keys</source>
        <translation>Restaurer %1 touches</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>TOUCHE</translation>
    </message>
    <message>
        <source>THE DEVICE HAS</source>
        <translation>SUR L’APPAREIL</translation>
    </message>
    <message>
        <source>APPLY MAKES IT</source>
        <translation>APRÈS APPLIQUER</translation>
    </message>
    <message>
        <source>FUNCTION</source>
        <translation>FONCTION</translation>
    </message>
    <message>
        <source>Back from the device, as a macro: %1</source>
        <translation>Revenu de l’appareil, en macro : %1</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>CheckPage</name>
    <message>
        <source>THIS PROFILE</source>
        <translation>CE PROFIL</translation>
    </message>
    <message>
        <source>ALL PROFILES</source>
        <translation>TOUS LES PROFILS</translation>
    </message>
    <message>
        <source>Nothing to look at.</source>
        <translation>Rien à signaler.</translation>
    </message>
    <message>
        <source>One thing to look at.</source>
        <translation>Un point à voir.</translation>
    </message>
    <message>
        <source>%1 things to look at.</source>
        <translation>%1 points à voir.</translation>
    </message>
    <message>
        <source>%1 is on the device. %2 See CHECK.</source>
        <translation>%1 est sur l’appareil. %2 Voir CONTRÔLE.</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>Les %1 premiers sont affichés.</translation>
    </message>
    <message>
        <source>Go there</source>
        <translation>Y aller</translation>
    </message>
</context>
<context>
    <name>DeviceView</name>
    <message>
        <source>ACTS BY</source>
        <translation>AGIT SELON</translation>
    </message>
    <message>
        <source>Profile that the device acts by</source>
        <translation>Profil selon lequel l’appareil agit</translation>
    </message>
    <message>
        <source>Depth of the chosen key in percent</source>
        <translation>Profondeur de la touche choisie en pour cent</translation>
    </message>
    <message>
        <source>WHAT THE DEVICE SENDS</source>
        <translation>CE QUE L’APPAREIL ENVOIE</translation>
    </message>
    <message>
        <source>LET GO</source>
        <translation>RELÂCHER</translation>
    </message>
    <message>
        <source>All keys come up</source>
        <translation>Toutes les touches remontent</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>EFFACER</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>TOUCHE</translation>
    </message>
    <message>
        <source>DEPTH</source>
        <translation>PROFONDEUR</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>ÉVÉNEMENT</translation>
    </message>
    <message>
        <source>CODE</source>
        <translation>CODE</translation>
    </message>
    <message>
        <source>It has what the profile holds.</source>
        <translation>Il a ce que contient le profil.</translation>
    </message>
    <message>
        <source>One key differs from the profile; APPLY sends it.</source>
        <translation>Une touche diffère du profil ; APPLIQUER l’envoie.</translation>
    </message>
    <message>
        <source>%1 keys differ from the profile; APPLY sends them.</source>
        <translation>%1 touches diffèrent du profil ; APPLIQUER les envoie.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Press a key of the pad.</source>
        <translation>Appuyez sur une touche du pavé.</translation>
    </message>
    <message>
        <source>▼ press %1</source>
        <translation>▼ appui sur %1</translation>
    </message>
    <message>
        <source>▲ release %1</source>
        <translation>▲ relâchement de %1</translation>
    </message>
    <message>
        <source>wait %1 ms</source>
        <translation>attente de %1 ms</translation>
    </message>
    <message>
        <source>switch to %1</source>
        <translation>passage à %1</translation>
    </message>
</context>
<context>
    <name>ExportDlg</name>
    <message>
        <source>EXPORT...</source>
        <translation>EXPORTER...</translation>
    </message>
    <message>
        <source>Export profiles</source>
        <translation>Exporter des profils</translation>
    </message>
    <message>
        <source>Profiles to export</source>
        <translation>Profils à exporter</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>TOUS</translation>
    </message>
    <message>
        <source>NONE</source>
        <translation>AUCUN</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULER</translation>
    </message>
    <message>
        <source>Profiles to export, with their macros:</source>
        <translation>Profils à exporter, avec leurs macros :</translation>
    </message>
    <message>
        <source>No macros go with them.</source>
        <translation>Aucune macro ne les accompagne.</translation>
    </message>
    <message>
        <source>Macros that go with them: %1.</source>
        <translation>Macros qui les accompagnent : %1.</translation>
    </message>
    <message>
        <source>profiles</source>
        <translation>profils</translation>
    </message>
    <message>
        <source>Profiles (*.json)</source>
        <translation>Profils (*.json)</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>%1 n’a pas été écrit : %2</translation>
    </message>
    <message>
        <source>One profile was exported to %1.</source>
        <translation>Un profil a été exporté vers %1.</translation>
    </message>
    <message>
        <source>%1 profiles were exported to %2.</source>
        <translation>%1 profils ont été exportés vers %2.</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find a function, key or macro</source>
        <translation>Chercher une fonction, une touche ou une macro</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Chercher</translation>
    </message>
    <message>
        <source>Keys that were found</source>
        <translation>Touches trouvées</translation>
    </message>
    <message>
        <source>No key has that.</source>
        <translation>Aucune touche ne correspond.</translation>
    </message>
    <message>
        <source>Keys: %1, profiles: %2.</source>
        <translation>Touches : %1, profils : %2.</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>Les %1 premiers sont affichés.</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Double-click a step, or press Enter, to go back or forth to it. The history is kept when the program is closed.</source>
        <translation>Double-cliquez sur une étape, ou appuyez sur Entrée, pour y revenir ou y avancer. L’historique est conservé à la fermeture du programme.</translation>
    </message>
    <message>
        <source>As it was at the start</source>
        <translation>Comme au début</translation>
    </message>
    <message>
        <source>%1   (now)</source>
        <translation>%1   (maintenant)</translation>
    </message>
    <message>
        <source>Earlier steps are listed when you go back to the oldest one here.</source>
        <translation>Les étapes antérieures s’affichent quand vous revenez à la plus ancienne d’ici.</translation>
    </message>
</context>
<context>
    <name>ImportDlg</name>
    <message>
        <source>No file is open.</source>
        <translation>Aucun fichier n’est ouvert.</translation>
    </message>
    <message>
        <source>IMPORT</source>
        <translation>IMPORTER</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULER</translation>
    </message>
    <message>
        <source>Import profiles</source>
        <translation>Importer des profils</translation>
    </message>
    <message>
        <source>OPEN...</source>
        <translation>OUVRIR...</translation>
    </message>
    <message>
        <source>Profiles of the file</source>
        <translation>Profils du fichier</translation>
    </message>
    <message>
        <source>PROFILE OF THE FILE</source>
        <translation>PROFIL DU FICHIER</translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation>TOUCHES</translation>
    </message>
    <message>
        <source>IN PLACE OF</source>
        <translation>À LA PLACE DE</translation>
    </message>
    <message>
        <source>Profiles (*.json);;All files (*)</source>
        <translation>Profils (*.json);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 est illisible : %2</translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation>PROFIL %1</translation>
    </message>
    <message>
        <source>In place of</source>
        <translation>À la place de</translation>
    </message>
    <message>
        <source>Two profiles would take the place of %1.</source>
        <translation>Deux profils prendraient la place de %1.</translation>
    </message>
    <message>
        <source>Macros that come with them: %1.</source>
        <translation>Macros qui les accompagnent : %1.</translation>
    </message>
    <message>
        <source>One profile was imported.</source>
        <translation>Un profil a été importé.</translation>
    </message>
    <message>
        <source>%1 profiles were imported.</source>
        <translation>%1 profils ont été importés.</translation>
    </message>
    <message>
        <source>The macro &quot;%1&quot; is named &quot;%2&quot; here, because there was another of its name.</source>
        <translation>La macro « %1 » s’appelle ici « %2 », car il y en avait déjà une de ce nom.</translation>
    </message>
    <message>
        <source>%1 was not found on this computer; its functions do nothing until it is.</source>
        <translation>%1 est introuvable sur cet ordinateur ; d’ici là, ses fonctions restent sans effet.</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>FERMER</translation>
    </message>
    <message>
        <source>The macros were imported.</source>
        <translation>Les macros ont été importées.</translation>
    </message>
</context>
<context>
    <name>KeyCombo</name>
    <message>
        <source>Key</source>
        <translation>Touche</translation>
    </message>
</context>
<context>
    <name>KeyFinder</name>
    <message>
        <source>%1 (unassigned)</source>
        <translation>%1 (non attribuée)</translation>
    </message>
</context>
<context>
    <name>KeyText</name>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (modifié)</translation>
    </message>
    <message>
        <source>CODE %1</source>
        <translation>CODE %1</translation>
    </message>
    <message>
        <source>%1 at %2%</source>
        <translation>%1 à %2%</translation>
    </message>
</context>
<context>
    <name>KeyTitle</name>
    <message>
        <source>Key %1</source>
        <translation>Touche %1</translation>
    </message>
    <message>
        <source>Key %1 (%2)</source>
        <translation>Touche %1 (%2)</translation>
    </message>
    <message>
        <source>Keys %1 and %2</source>
        <translation>Touches %1 et %2</translation>
    </message>
</context>
<context>
    <name>MacroEditor</name>
    <message>
        <source>RECORDING
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>ENREGISTREMENT
Appuyez sur des touches. Pour finir, appuyez deux fois sur Échap ou cliquez sur ARRÊT.</translation>
    </message>
    <message>
        <source>Events of the macro</source>
        <translation>Événements de la macro</translation>
    </message>
    <message>
        <source>RECORD</source>
        <translation>ENREGISTRER</translation>
    </message>
    <message>
        <source>Record keys at the end of the macro</source>
        <translation>Enregistrer des touches à la fin de la macro</translation>
    </message>
    <message>
        <source>Delays of recorded keys</source>
        <translation>Délais des touches enregistrées</translation>
    </message>
    <message>
        <source>delays as they were</source>
        <translation>délais d’origine</translation>
    </message>
    <message>
        <source>no delays</source>
        <translation>sans délai</translation>
    </message>
    <message>
        <source>fixed delays</source>
        <translation>délais fixes</translation>
    </message>
    <message>
        <source>Fixed delay in milliseconds</source>
        <translation>Délai fixe en millisecondes</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>SET ALL</source>
        <translation>TOUT RÉGLER</translation>
    </message>
    <message>
        <source>Give all events of the macro this delay</source>
        <translation>Donner ce délai à tous les événements de la macro</translation>
    </message>
    <message>
        <source>Event to add</source>
        <translation>Événement à ajouter</translation>
    </message>
    <message>
        <source>press and release</source>
        <translation>appuyer et relâcher</translation>
    </message>
    <message>
        <source>press</source>
        <translation>appuyer</translation>
    </message>
    <message>
        <source>release</source>
        <translation>relâcher</translation>
    </message>
    <message>
        <source>ADD</source>
        <translation>AJOUTER</translation>
    </message>
    <message>
        <source>Move the event up (Alt+Up)</source>
        <translation>Monter l’événement (Alt+Haut)</translation>
    </message>
    <message>
        <source>Move the event down (Alt+Down)</source>
        <translation>Descendre l’événement (Alt+Bas)</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>SUPPRIMER</translation>
    </message>
    <message>
        <source>Chosen events:</source>
        <translation>Événements choisis :</translation>
    </message>
    <message>
        <source>%1: %2 of %3 events</source>
        <translation>%1 : %2 événements sur %3</translation>
    </message>
    <message>
        <source>Make a new macro, then record keys.</source>
        <translation>Créez une macro, puis enregistrez des touches.</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>ARRÊT</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a key that a macro can have.</source>
        <translation>« %1 » n’est pas une touche qu’une macro peut contenir.</translation>
    </message>
    <message>
        <source>RECORDING: %1 of %2 events
Press keys. To finish, press Esc twice or click STOP.</source>
        <translation>ENREGISTREMENT : %1 événements sur %2
Appuyez sur des touches. Pour finir, appuyez deux fois sur Échap ou cliquez sur ARRÊT.</translation>
    </message>
</context>
<context>
    <name>MacroEventDelegate</name>
    <message>
        <source>release</source>
        <translation>relâcher</translation>
    </message>
    <message>
        <source>press</source>
        <translation>appuyer</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
</context>
<context>
    <name>MacroEventModel</name>
    <message>
        <source>%1 (code %2)</source>
        <translation>%1 (code %2)</translation>
    </message>
    <message>
        <source>Add events to macro %1</source>
        <translation>Ajouter des événements à la macro %1</translation>
    </message>
    <message>
        <source>Delete events of macro %1</source>
        <translation>Supprimer des événements de la macro %1</translation>
    </message>
    <message>
        <source>Move an event of macro %1</source>
        <translation>Déplacer un événement de la macro %1</translation>
    </message>
    <message>
        <source>Change delays of macro %1</source>
        <translation>Changer les délais de la macro %1</translation>
    </message>
    <message>
        <source>▼ press</source>
        <translation>▼ appui</translation>
    </message>
    <message>
        <source>▲ release</source>
        <translation>▲ relâchement</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>ÉVÉNEMENT</translation>
    </message>
    <message>
        <source>KEY</source>
        <translation>TOUCHE</translation>
    </message>
    <message>
        <source>THEN WAIT</source>
        <translation>PUIS ATTENDRE</translation>
    </message>
    <message>
        <source>Change a delay of macro %1</source>
        <translation>Changer un délai de la macro %1</translation>
    </message>
    <message>
        <source>Change an event of macro %1</source>
        <translation>Changer un événement de la macro %1</translation>
    </message>
</context>
<context>
    <name>MacroPage</name>
    <message>
        <source>BACK TO THE KEYS</source>
        <translation>RETOUR AUX TOUCHES</translation>
    </message>
    <message>
        <source>NEW</source>
        <translation>NOUVEAU</translation>
    </message>
    <message>
        <source>RENAME</source>
        <translation>RENOMMER</translation>
    </message>
    <message>
        <source>DELETE</source>
        <translation>SUPPRIMER</translation>
    </message>
    <message>
        <source>Macros</source>
        <translation>Macros</translation>
    </message>
    <message>
        <source>NO.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOM</translation>
    </message>
    <message>
        <source>EVENTS</source>
        <translation>ÉVÉNEMENTS</translation>
    </message>
    <message>
        <source>KEYS</source>
        <translation>TOUCHES</translation>
    </message>
    <message>
        <source>NO KEY HAS IT</source>
        <translation>AUCUNE TOUCHE NE L’A</translation>
    </message>
    <message>
        <source>KEYS THAT HAVE IT</source>
        <translation>TOUCHES QUI L’ONT</translation>
    </message>
    <message>
        <source>Go to this key</source>
        <translation>Aller à cette touche</translation>
    </message>
    <message>
        <source>Add macro %1</source>
        <translation>Ajouter la macro %1</translation>
    </message>
    <message>
        <source>Macro</source>
        <translation>Macro</translation>
    </message>
    <message>
        <source>A macro needs a name.</source>
        <translation>Une macro doit avoir un nom.</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>Renommer la macro %1 en %2</translation>
    </message>
    <message>
        <source>There is another macro named &quot;%1&quot;.</source>
        <translation>Une autre macro s’appelle déjà « %1 ».</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>Supprimer la macro %1</translation>
    </message>
    <message>
        <source>Macro %1 was deleted.</source>
        <translation>La macro %1 a été supprimée.</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off %2 keys.</source>
        <translation>La macro %1 a été supprimée et retirée de %2 touches.</translation>
    </message>
    <message>
        <source>Record the macro, then go back and choose it for the key.</source>
        <translation>Enregistrez la macro, puis revenez et choisissez-la pour la touche.</translation>
    </message>
    <message>
        <source>The new macro was empty and was not kept.</source>
        <translation>La nouvelle macro était vide et n’a pas été conservée.</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>COPIER</translation>
    </message>
    <message>
        <source>Make another macro with the same events</source>
        <translation>Créer une autre macro avec les mêmes événements</translation>
    </message>
    <message>
        <source>Macro %1 was deleted and taken off one key.</source>
        <translation>La macro %1 a été supprimée et retirée d’une touche.</translation>
    </message>
    <message>
        <source>Move macro %1</source>
        <translation>Déplacer la macro %1</translation>
    </message>
</context>
<context>
    <name>MacroRecorder</name>
    <message>
        <source>A macro holds at most %1 events.</source>
        <translation>Une macro contient au plus %1 événements.</translation>
    </message>
    <message>
        <source>The pad has no code for this key.</source>
        <translation>Le pavé n’a pas de code pour cette touche.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>MAPPING</source>
        <translation>TOUCHES</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Settings...</source>
        <translation>&amp;Paramètres...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>&amp;Profil</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;Find Keys...</source>
        <translation>&amp;Chercher des touches...</translation>
    </message>
    <message>
        <source>Assign by &amp;Pressing Keys</source>
        <translation>Attribuer en &amp;appuyant sur une touche</translation>
    </message>
    <message>
        <source>While a key of the pad is selected, the next key that is pressed is put on it. Off, the keyboard works the window.</source>
        <translation>Tant qu’une touche du pavé est sélectionnée, la prochaine touche pressée lui est attribuée. Désactivé, le clavier commande la fenêtre.</translation>
    </message>
    <message>
        <source>&amp;Apply to Device</source>
        <translation>A&amp;ppliquer à l’appareil</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>Profile &amp;Names</source>
        <translation>&amp;Noms des profils</translation>
    </message>
    <message>
        <source>Everything is on the device.</source>
        <translation>Tout est sur l’appareil.</translation>
    </message>
    <message>
        <source>Not on the device yet: %1.</source>
        <translation>Pas encore sur l’appareil : %1.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Annulé : %1</translation>
    </message>
    <message>
        <source>Done again: %1</source>
        <translation>Rétabli : %1</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Annuler %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rétablir %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Undo %1 (Ctrl+Z)</source>
        <translation>Annuler %1 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Redo %1 (Ctrl+Shift+Z)</source>
        <translation>Rétablir %1 (Ctrl+Maj+Z)</translation>
    </message>
    <message>
        <source>nothing to apply</source>
        <translation>rien à appliquer</translation>
    </message>
    <message>
        <source>1 key to apply</source>
        <translation>1 touche à appliquer</translation>
    </message>
    <message>
        <source>%1 keys to apply</source>
        <translation>%1 touches à appliquer</translation>
    </message>
    <message>
        <source>Device: %1   |   %2   |</source>
        <translation>Appareil : %1   |   %2   |</translation>
    </message>
    <message>
        <source>READ ONLY</source>
        <translation>LECTURE SEULE</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>NOT SAVED</source>
        <translation>NON ENREGISTRÉ</translation>
    </message>
    <message>
        <source>CHANGES %1</source>
        <translation>ÉCARTS %1</translation>
    </message>
    <message>
        <source>CHANGES</source>
        <translation>ÉCARTS</translation>
    </message>
    <message>
        <source>%1%2 - VANTRIX</source>
        <translation>%1%2 - VANTRIX</translation>
    </message>
    <message>
        <source> (read only)</source>
        <translation> (lecture seule)</translation>
    </message>
    <message>
        <source>Click a key of the pad, then choose what it does.</source>
        <translation>Cliquez sur une touche du pavé, puis choisissez ce qu’elle fait.</translation>
    </message>
    <message>
        <source>CHECK %1</source>
        <translation>CONTRÔLE %1</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>CONTRÔLE</translation>
    </message>
    <message>
        <source>%1 takes the next key you press. Ctrl+K, with no key selected, switches that off.</source>
        <translation>%1 prend la prochaine touche pressée. Ctrl+K, sans touche sélectionnée, désactive cela.</translation>
    </message>
    <message>
        <source>The changes cannot be saved and are lost with the window. Close it?</source>
        <translation>Les modifications ne peuvent pas être enregistrées et seront perdues avec la fenêtre. La fermer ?</translation>
    </message>
    <message>
        <source>Nothing to undo</source>
        <translation>Rien à annuler</translation>
    </message>
    <message>
        <source>Nothing to redo</source>
        <translation>Rien à rétablir</translation>
    </message>
    <message>
        <source>Steps undone: %1</source>
        <translation>Étapes annulées : %1</translation>
    </message>
    <message>
        <source>Steps done again: %1</source>
        <translation>Étapes rétablies : %1</translation>
    </message>
</context>
<context>
    <name>MappingView</name>
    <message>
        <source>COMPANION</source>
        <translation>COMPAGNON</translation>
    </message>
    <message>
        <source>%1 is on the device.</source>
        <translation>%1 est sur l’appareil.</translation>
    </message>
    <message>
        <source>%1 did not reach the device.</source>
        <translation>%1 n’est pas arrivé à l’appareil.</translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>Réinitialiser %1</translation>
    </message>
    <message>
        <source>The device was reset, and %1 with it. Undo brings its keys back; the other profiles are kept here and can be applied again.</source>
        <translation>L’appareil a été réinitialisé, et %1 avec lui. Annuler fait revenir ses touches ; les autres profils sont conservés ici et peuvent être appliqués à nouveau.</translation>
    </message>
    <message>
        <source>The device was reset. The profiles are kept here and can be applied again.</source>
        <translation>L’appareil a été réinitialisé. Les profils sont conservés ici et peuvent être appliqués à nouveau.</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>DISMISS</source>
        <translation>MASQUER</translation>
    </message>
</context>
<context>
    <name>PadView</name>
    <message>
        <source>Picture of the pad</source>
        <translation>Image du pavé</translation>
    </message>
</context>
<context>
    <name>ProfileCheck</name>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is not there any more.</source>
        <translation>%1 a la macro « %2 », qui n’existe plus.</translation>
    </message>
    <message>
        <source>%1 has the macro &quot;%2&quot;, which is empty.</source>
        <translation>%1 a la macro « %2 », qui est vide.</translation>
    </message>
    <message>
        <source>%1 has a dual action without a second action.</source>
        <translation>%1 a une double action sans seconde action.</translation>
    </message>
    <message>
        <source>%1 has a dual action without a first action.</source>
        <translation>%1 a une double action sans première action.</translation>
    </message>
    <message>
        <source>%1 has a function of %2, which was not found on this computer.</source>
        <translation>%1 a une fonction de %2, introuvable sur cet ordinateur.</translation>
    </message>
    <message>
        <source>%1 have functions of %2, which was not found on this computer.</source>
        <translation>%1 ont des fonctions de %2, introuvable sur cet ordinateur.</translation>
    </message>
    <message>
        <source>%1 of %2 leads to this profile, and no key leads back.</source>
        <translation>%1 de %2 mène à ce profil, et aucune touche n’en ramène.</translation>
    </message>
    <message>
        <source>%1 do the same: %2.</source>
        <translation>%1 font la même chose : %2.</translation>
    </message>
</context>
<context>
    <name>ProfileExchange</name>
    <message>
        <source>top</source>
        <translation>début</translation>
    </message>
    <message>
        <source>%1 is not an object</source>
        <translation>%1 n’est pas un objet</translation>
    </message>
    <message>
        <source>there is no member &quot;%1&quot; here</source>
        <translation>il manque ici un membre « %1 »</translation>
    </message>
    <message>
        <source>%1 is not a list</source>
        <translation>%1 n’est pas une liste</translation>
    </message>
    <message>
        <source>%1 elements are more than %2</source>
        <translation>%1 éléments, c’est plus que %2</translation>
    </message>
    <message>
        <source>%1 is not a whole number from %2 to %3</source>
        <translation>%1 n’est pas un nombre entier de %2 à %3</translation>
    </message>
    <message>
        <source>%1 is not a text</source>
        <translation>%1 n’est pas un texte</translation>
    </message>
    <message>
        <source>the text holds a character that cannot be stored</source>
        <translation>le texte contient un caractère impossible à enregistrer</translation>
    </message>
    <message>
        <source>two macros are named &quot;%1&quot;</source>
        <translation>deux macros s’appellent « %1 »</translation>
    </message>
    <message>
        <source>profile %1 is here twice</source>
        <translation>le profil %1 figure deux fois</translation>
    </message>
    <message>
        <source>this is not a file of profiles</source>
        <translation>ceci n’est pas un fichier de profils</translation>
    </message>
    <message>
        <source>the file is of version %1; this program reads up to %2</source>
        <translation>le fichier est de version %1 ; ce programme lit jusqu’à la version %2</translation>
    </message>
    <message>
        <source>a macro needs a name</source>
        <translation>une macro doit avoir un nom</translation>
    </message>
    <message>
        <source>these are %1 bytes and not %2</source>
        <translation>cela fait %1 octets et non %2</translation>
    </message>
    <message>
        <source>%1 is neither true nor false</source>
        <translation>%1 n’est ni vrai ni faux</translation>
    </message>
    <message>
        <source>key %1 is here twice</source>
        <translation>la touche %1 figure deux fois</translation>
    </message>
    <message>
        <source>1 is not 0, 2 or 3</source>
        <translation>1 n’est pas 0, 2 ou 3</translation>
    </message>
    <message>
        <source>a key holds only one of app, hotKey, shortcut, extended and macro</source>
        <translation>une touche n’a que l’un de app, hotKey, shortcut, extended et macro</translation>
    </message>
    <message>
        <source>%1 is not an extended code</source>
        <translation>%1 n’est pas un code étendu</translation>
    </message>
    <message>
        <source>Import profile %1</source>
        <translation>Importer le profil %1</translation>
    </message>
    <message>
        <source>Import %1 profiles</source>
        <translation>Importer %1 profils</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>une liste</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>un objet</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>rien</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>ligne %1, colonne %2</translation>
    </message>
    <message>
        <source>Import macros</source>
        <translation>Importer les macros</translation>
    </message>
</context>
<context>
    <name>ProfileList</name>
    <message>
        <source>DEVICE</source>
        <translation>APPAREIL</translation>
    </message>
    <message>
        <source>PROFILES</source>
        <translation>PROFILS</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profils</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>COPIER</translation>
    </message>
    <message>
        <source>Copy this profile over another one</source>
        <translation>Copier ce profil sur un autre</translation>
    </message>
    <message>
        <source>CLEAR</source>
        <translation>EFFACER</translation>
    </message>
    <message>
        <source>Take everything off the keys of this profile</source>
        <translation>Retirer tout des touches de ce profil</translation>
    </message>
    <message>
        <source>Move up (Alt+Up)</source>
        <translation>Monter (Alt+Haut)</translation>
    </message>
    <message>
        <source>Move down (Alt+Down)</source>
        <translation>Descendre (Alt+Bas)</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <translation>&amp;Renommer...</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Dupliquer</translation>
    </message>
    <message>
        <source>Copy &amp;Over</source>
        <translation>&amp;Copier sur un autre</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Vider</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>D&amp;escendre</translation>
    </message>
    <message>
        <source>&amp;Next Profile</source>
        <translation>Profil &amp;suivant</translation>
    </message>
    <message>
        <source>&amp;Previous Profile</source>
        <translation>Profil p&amp;récédent</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>affiché</translation>
    </message>
    <message>
        <source>the device acts by it</source>
        <translation>l’appareil agit selon lui</translation>
    </message>
    <message>
        <source>differs from what the device has</source>
        <translation>diffère de ce qu’a l’appareil</translation>
    </message>
    <message>
        <source>All profiles are in use: choose one to copy over.</source>
        <translation>Tous les profils sont utilisés : choisissez celui à remplacer.</translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation>Dupliquer %1</translation>
    </message>
    <message>
        <source>%1 was copied to profile %2.</source>
        <translation>%1 a été copié dans le profil %2.</translation>
    </message>
    <message>
        <source>%1  (unused)</source>
        <translation>%1  (inutilisé)</translation>
    </message>
    <message>
        <source>Clear %1</source>
        <translation>Vider %1</translation>
    </message>
    <message>
        <source>%1 was cleared. Undo brings it back.</source>
        <translation>%1 a été vidé. Annuler le fait revenir.</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>Déplacer %1</translation>
    </message>
    <message>
        <source>%1 has nothing on its keys.</source>
        <translation>%1 n’a rien sur ses touches.</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>%1 COPY</source>
        <translation>COPIE DE %1</translation>
    </message>
    <message>
        <source>PROFILE %1</source>
        <translation>PROFIL %1</translation>
    </message>
</context>
<context>
    <name>SettingsDlg</name>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Langue :</translation>
    </message>
    <message>
        <source>&amp;Hot-key catalog:</source>
        <translation>Catalogue de &amp;raccourcis :</translation>
    </message>
    <message>
        <source>Hot-key catalog</source>
        <translation>Catalogue de raccourcis</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>introuvable</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Keys with &amp;macros in a profile:</source>
        <translation>Touches à &amp;macro par profil :</translation>
    </message>
    <message>
        <source>BROWSE</source>
        <translation>PARCOURIR</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULER</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>Il n’y a pas de dossier %1.</translation>
    </message>
    <message>
        <source>There is no program %1.</source>
        <translation>Il n’y a pas de programme %1.</translation>
    </message>
</context>
<context>
    <name>ShellPages</name>
    <message>
        <source>CHANGES</source>
        <translation>ÉCARTS</translation>
    </message>
    <message>
        <source>HISTORY</source>
        <translation>HISTORIQUE</translation>
    </message>
    <message>
        <source>MACROS</source>
        <translation>MACROS</translation>
    </message>
    <message>
        <source>DEVICE</source>
        <translation>APPAREIL</translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation>CONTRÔLE</translation>
    </message>
    <message>
        <source>Import profiles...</source>
        <translation>Importer des profils...</translation>
    </message>
    <message>
        <source>Export profiles...</source>
        <translation>Exporter des profils...</translation>
    </message>
</context>
<context>
    <name>StepName</name>
    <message>
        <source>Depth of key %1: %2%</source>
        <translation>Profondeur de la touche %1 : %2%</translation>
    </message>
    <message>
        <source>Clear key %1</source>
        <translation>Vider la touche %1</translation>
    </message>
    <message>
        <source>Assign %1 to key %2</source>
        <translation>Attribuer %1 à la touche %2</translation>
    </message>
    <message numerus="yes">
        <source>Change %n key(s) in several profiles</source>
        <translation>
            <numerusform>Changer %n touche dans plusieurs profils</numerusform>
            <numerusform>Changer %n touches dans plusieurs profils</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear %1 keys</source>
        <translation>Vider %1 touches</translation>
    </message>
    <message>
        <source>Dual actions on %1 keys</source>
        <translation>Doubles actions sur %1 touches</translation>
    </message>
    <message>
        <source>Change %1 keys</source>
        <translation>Changer %1 touches</translation>
    </message>
    <message>
        <source>Rename macro %1 to %2</source>
        <translation>Renommer la macro %1 en %2</translation>
    </message>
    <message>
        <source>Create macro %1</source>
        <translation>Créer la macro %1</translation>
    </message>
    <message>
        <source>Delete macro %1</source>
        <translation>Supprimer la macro %1</translation>
    </message>
    <message>
        <source>Move a macro</source>
        <translation>Déplacer une macro</translation>
    </message>
    <message>
        <source>Edit macro %1</source>
        <translation>Modifier la macro %1</translation>
    </message>
    <message>
        <source>Preset: %1</source>
        <translation>Préréglage : %1</translation>
    </message>
    <message>
        <source>Name profile %1: %2</source>
        <translation>Nommer le profil %1 : %2</translation>
    </message>
    <message>
        <source>Move a profile</source>
        <translation>Déplacer un profil</translation>
    </message>
    <message>
        <source>Pressure sensing on</source>
        <translation>Capteur de pression activé</translation>
    </message>
    <message>
        <source>Pressure sensing off</source>
        <translation>Capteur de pression désactivé</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Changement</translation>
    </message>
</context>
<context>
    <name>StoreKeeper</name>
    <message>
        <source>The store %1 was missing. The last good copy of it is used.</source>
        <translation>La base %1 manquait. Sa dernière bonne copie est utilisée.</translation>
    </message>
    <message>
        <source>The store %1 was written by a newer version of this program.</source>
        <translation>La base %1 a été écrite par une version plus récente de ce programme.</translation>
    </message>
    <message>
        <source>The store %1 is damaged and cannot be read.</source>
        <translation>La base %1 est endommagée et illisible.</translation>
    </message>
    <message>
        <source>It was left as it is.</source>
        <translation>Elle a été laissée telle quelle.</translation>
    </message>
    <message>
        <source>It was kept as %1.</source>
        <translation>Elle a été conservée sous %1.</translation>
    </message>
    <message>
        <source>The last good copy is used.</source>
        <translation>La dernière bonne copie est utilisée.</translation>
    </message>
    <message>
        <source>There is no good copy of it, so everything starts empty.</source>
        <translation>Il n’en existe pas de bonne copie, tout commence donc vide.</translation>
    </message>
    <message>
        <source>The store %1 was brought up to date. The file of the earlier version was kept as %2.</source>
        <translation>La base %1 a été mise à jour. Le fichier de l’ancienne version a été conservé sous %2.</translation>
    </message>
    <message>
        <source>The store %1 was replaced by another file while the program was running. That file was kept as %2, and the store was written again.</source>
        <translation>La base %1 a été remplacée par un autre fichier pendant l’exécution. Ce fichier a été conservé sous %2 et la base a été réécrite.</translation>
    </message>
    <message>
        <source>The store %1 was removed while the program was running. It was written again.</source>
        <translation>La base %1 a été supprimée pendant l’exécution. Elle a été réécrite.</translation>
    </message>
    <message>
        <source>All changes are saved again.</source>
        <translation>Tous les changements sont de nouveau enregistrés.</translation>
    </message>
    <message>
        <source>Changes are kept in memory and saved as soon as possible.</source>
        <translation>Les changements restent en mémoire et seront enregistrés dès que possible.</translation>
    </message>
    <message>
        <source>There is no room on the disk for the store %1.</source>
        <translation>Il n’y a plus de place sur le disque pour la base %1.</translation>
    </message>
    <message>
        <source>Another program is using the store %1.</source>
        <translation>Un autre programme utilise la base %1.</translation>
    </message>
    <message>
        <source>The store %1 cannot be written.</source>
        <translation>La base %1 ne peut pas être écrite.</translation>
    </message>
    <message>
        <source>What it holds is shown as soon as it can be read.</source>
        <translation>Son contenu s’affichera dès qu’il pourra être lu.</translation>
    </message>
    <message>
        <source>The last good copy of it is shown until what it holds can be read.</source>
        <translation>Sa dernière bonne copie s’affiche jusqu’à ce que son contenu puisse être lu.</translation>
    </message>
    <message>
        <source>Another window has the store %1 open.</source>
        <translation>La base %1 est ouverte dans une autre fenêtre.</translation>
    </message>
    <message>
        <source>It is shown here, but changes made here are not kept.</source>
        <translation>Elle est affichée ici, mais les modifications faites ici ne sont pas conservées.</translation>
    </message>
    <message>
        <source>It cannot be read here, and changes made here are not kept.</source>
        <translation>Elle ne peut pas être lue ici, et les modifications faites ici ne sont pas conservées.</translation>
    </message>
    <message>
        <source>The copy %1 cannot be read. It was kept as %2.</source>
        <translation>La copie %1 est illisible. Elle a été conservée sous %2.</translation>
    </message>
    <message>
        <source>The store %1 on the disk was another than what was shown here when something was changed. It was kept as %2, and a new one was begun.</source>
        <translation>La base %1 sur le disque était une autre que celle affichée ici quand une modification a été faite. Elle a été conservée sous %2, et une nouvelle a été commencée.</translation>
    </message>
    <message>
        <source>The store %1 is shown as it is on the disk now.</source>
        <translation>La base %1 est affichée telle qu’elle est maintenant sur le disque.</translation>
    </message>
</context>
</TS>
