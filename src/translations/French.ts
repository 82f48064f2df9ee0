<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>ActionAssignUi</name>
    <message>
        <source>BACK</source>
        <translation>RETOUR</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>APPLIQUER</translation>
    </message>
</context>
<context>
    <name>ActionBtn</name>
    <message>
        <source>ACTION</source>
        <translation>ACTION</translation>
    </message>
</context>
<context>
    <name>ActionWid</name>
    <message>
        <source>ACTION</source>
        <translation>ACTION</translation>
    </message>
</context>
<context>
    <name>AdvAssignWid</name>
    <message>
        <source>CTRL LEFT</source>
        <translation>CTRL GAUCHE</translation>
    </message>
    <message>
        <source>SHIFT LEFT</source>
        <translation>MAJ GAUCHE</translation>
    </message>
    <message>
        <source>ALT LEFT</source>
        <translation>ALT GAUCHE</translation>
    </message>
    <message>
        <source>CTRL RIGHT</source>
        <translation>CTRL DROITE</translation>
    </message>
    <message>
        <source>SHIFT RIGHT</source>
        <translation>MAJ DROITE</translation>
    </message>
    <message>
        <source>ALT RIGHT</source>
        <translation>ALT GR</translation>
    </message>
</context>
<context>
    <name>AppPathDlg</name>
    <message>
        <source>APPLICATION</source>
        <translation>APPLICATION</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>FERMER</translation>
    </message>
    <message>
        <source>PATH</source>
        <translation>CHEMIN</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Ouvrir un fichier</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULER</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>APPLIQUER</translation>
    </message>
</context>
<context>
    <name>ApplicationBtn</name>
    <message>
        <source>Open File</source>
        <translation>Ouvrir un fichier</translation>
    </message>
</context>
<context>
    <name>AssignMenuUi</name>
    <message>
        <source>REASSIGN KEY</source>
        <translation>RÉATTRIBUER LA TOUCHE</translation>
    </message>
    <message>
        <source>CONTROLLER MAPPING MODE</source>
        <translation>MODE MANETTE</translation>
    </message>
    <message>
        <source>DUAL ACTION MAPPING MODE</source>
        <translation>MODE DOUBLE ACTION</translation>
    </message>
    <message>
        <source>CLEAR KEY ASSIGNMENT</source>
        <translation>EFFACER L’ATTRIBUTION</translation>
    </message>
    <message>
        <source>DISABLE KEY</source>
        <translation>DÉSACTIVER LA TOUCHE</translation>
    </message>
</context>
<context>
    <name>AssignWid</name>
    <message>
        <source>warning</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>Macro assign has reached maximum limit</source>
        <translation>Le nombre maximal de macros attribuées est atteint</translation>
    </message>
    <message>
        <source>Fail to find the path of the program.</source>
        <translation>Le chemin du programme est introuvable.</translation>
    </message>
    <message>
        <source>Please assign it manually:</source>
        <translation>Veuillez l’indiquer vous-même :</translation>
    </message>
</context>
<context>
    <name>BackLightUi</name>
    <message>
        <source>BACKLIGHT</source>
        <translation>RÉTROÉCLAIRAGE</translation>
    </message>
</context>
<context>
    <name>Common</name>
    <message>
        <source>A1</source>
        <translation>A1</translation>
    </message>
    <message>
        <source>A2</source>
        <translation>A2</translation>
    </message>
    <message>
        <source>A3</source>
        <translation>A3</translation>
    </message>
    <message>
        <source>BLUR</source>
        <translation>FLOU</translation>
    </message>
    <message>
        <source>BRUSH SIZE</source>
        <translation>TAILLE DU PINCEAU</translation>
    </message>
    <message>
        <source>BRUSH HARDNESS</source>
        <translation>DURETÉ DU PINCEAU</translation>
    </message>
    <message>
        <source>CROP</source>
        <translation>RECADRAGE</translation>
    </message>
    <message>
        <source>CLONE STAMP</source>
        <translation>TAMPON DE DUPLICATION</translation>
    </message>
    <message>
        <source>DODGE</source>
        <translation>DENSITÉ -</translation>
    </message>
    <message>
        <source>EYEDROP</source>
        <translation>PIPETTE</translation>
    </message>
    <message>
        <source>LASSO</source>
        <translation>LASSO</translation>
    </message>
    <message>
        <source>LAUNCH PS</source>
        <translation>LANCER PS</translation>
    </message>
    <message>
        <source>MOVE</source>
        <translation>DÉPLACEMENT</translation>
    </message>
    <message>
        <source>RECTANGULAR MARQUEE</source>
        <translation>RECTANGLE DE SÉLECTION</translation>
    </message>
    <message>
        <source>MAGNIFYING</source>
        <translation>ZOOM</translation>
    </message>
    <message>
        <source>PEN</source>
        <translation>PLUME</translation>
    </message>
    <message>
        <source>POINTER</source>
        <translation>POINTEUR</translation>
    </message>
    <message>
        <source>QUICK SELECTION</source>
        <translation>SÉLECTION RAPIDE</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>TEXTE</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>ARRIÈRE</translation>
    </message>
    <message>
        <source>COMPARISON</source>
        <translation>COMPARAISON</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>AVANT</translation>
    </message>
    <message>
        <source>GO TO IN</source>
        <translation>ALLER AU POINT D’ENTRÉE</translation>
    </message>
    <message>
        <source>GO TO OUT</source>
        <translation>ALLER AU POINT DE SORTIE</translation>
    </message>
    <message>
        <source>HAND</source>
        <translation>MAIN</translation>
    </message>
    <message>
        <source>LAUNCH PR</source>
        <translation>LANCER PR</translation>
    </message>
    <message>
        <source>MARK IN</source>
        <translation>MARQUER L’ENTRÉE</translation>
    </message>
    <message>
        <source>MARK OUT</source>
        <translation>MARQUER LA SORTIE</translation>
    </message>
    <message>
        <source>PLAY-STOP TOGGLE</source>
        <translation>LECTURE/ARRÊT</translation>
    </message>
    <message>
        <source>RAZOR</source>
        <translation>RASOIR</translation>
    </message>
    <message>
        <source>RIPPLE EDIT</source>
        <translation>PROPAGATION</translation>
    </message>
    <message>
        <source>SLIP</source>
        <translation>DÉPLACER DESSOUS</translation>
    </message>
    <message>
        <source>STEP BACK 1 FRAME</source>
        <translation>RECULER D’UNE IMAGE</translation>
    </message>
    <message>
        <source>STEP FORWARD 1 FRAME</source>
        <translation>AVANCER D’UNE IMAGE</translation>
    </message>
    <message>
        <source>SELECTION</source>
        <translation>SÉLECTION</translation>
    </message>
    <message>
        <source>TRACK SELECT FORWARD</source>
        <translation>SÉLECTION PISTE AVANT</translation>
    </message>
    <message>
        <source>ARTBOARD</source>
        <translation>PLAN DE TRAVAIL</translation>
    </message>
    <message>
        <source>BRUSH OPACITY</source>
        <translation>OPACITÉ DU PINCEAU</translation>
    </message>
    <message>
        <source>DIRECT SELECTION</source>
        <translation>SÉLECTION DIRECTE</translation>
    </message>
    <message>
        <source>ELLIPSE</source>
        <translation>ELLIPSE</translation>
    </message>
    <message>
        <source>LAUNCH AI</source>
        <translation>LANCER AI</translation>
    </message>
    <message>
        <source>POLYGON</source>
        <translation>POLYGONE</translation>
    </message>
    <message>
        <source>ROTATE</source>
        <translation>ROTATION</translation>
    </message>
    <message>
        <source>RECTANGLE</source>
        <translation>RECTANGLE</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE</source>
        <translation>RECTANGLE ARRONDI</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Photoshop</source>
        <translation>Exécute le script 1. Veuillez attribuer F2 à un script dans Photoshop</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Photoshop</source>
        <translation>Exécute le script 2. Veuillez attribuer F3 à un script dans Photoshop</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Photoshop</source>
        <translation>Exécute le script 3. Veuillez attribuer F4 à un script dans Photoshop</translation>
    </message>
    <message>
        <source>To use Presso(Pressure Sensitive) Blur,
please assign N to Blur Tool in Photoshop(Alt+Shift+Ctrl+K)</source>
        <translation>Pour utiliser le flou sensible à la pression (Presso),
veuillez attribuer N à l’outil Goutte d’eau dans Photoshop (Alt+Maj+Ctrl+K)</translation>
    </message>
    <message>
        <source>COMPARISON
Please assign F2 to Comparison Tool in Premiere Pro(Ctrl+Alt+K)</source>
        <translation>COMPARAISON
Veuillez attribuer F2 à la comparaison dans Premiere Pro (Ctrl+Alt+K)</translation>
    </message>
    <message>
        <source>Play Action 1. Please assign F2 to an Action in Illustrator</source>
        <translation>Exécute le script 1. Veuillez attribuer F2 à un script dans Illustrator</translation>
    </message>
    <message>
        <source>Play Action 2. Please assign F3 to an Action in Illustrator</source>
        <translation>Exécute le script 2. Veuillez attribuer F3 à un script dans Illustrator</translation>
    </message>
    <message>
        <source>Play Action 3. Please assign F4 to an Action in Illustrator</source>
        <translation>Exécute le script 3. Veuillez attribuer F4 à un script dans Illustrator</translation>
    </message>
    <message>
        <source>POLYGON
Please assign 2 to Polygon Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>POLYGONE
Veuillez attribuer 2 à l’outil Polygone dans Illustrator (Alt+Maj+Ctrl+K)</translation>
    </message>
    <message>
        <source>ROUNDED RECTANGLE
Please assign 1 to Rounded Rectangle Tool in Illustrator(Alt+Shift+Ctrl+K)</source>
        <translation>RECTANGLE ARRONDI
Veuillez attribuer 1 à l’outil Rectangle arrondi dans Illustrator (Alt+Maj+Ctrl+K)</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>INCONNU</translation>
    </message>
    <message>
        <source>PHOTOSHOP</source>
        <translation>PHOTOSHOP</translation>
    </message>
    <message>
        <source>PREMIERE PRO</source>
        <translation>PREMIERE PRO</translation>
    </message>
    <message>
        <source>ILLUSTRATOR</source>
        <translation>ILLUSTRATOR</translation>
    </message>
</context>
<context>
    <name>DualActionAdvUi</name>
    <message>
        <source>ACTION 1</source>
        <translation>ACTION 1</translation>
    </message>
    <message>
        <source>ACTION 2</source>
        <translation>ACTION 2</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>TYPE</translation>
    </message>
</context>
<context>
    <name>DualActionDistUi</name>
    <message>
        <source>ACTIVATION DISTANCE</source>
        <translation>POINT D’ACTIVATION</translation>
    </message>
    <message>
        <source>TRAVEL</source>
        <translation>COURSE</translation>
    </message>
</context>
<context>
    <name>DualActionTipWid</name>
    <message>
        <source>ACTION1</source>
        <translation>ACTION1</translation>
    </message>
    <message>
        <source>ACTION2</source>
        <translation>ACTION2</translation>
    </message>
</context>
<context>
    <name>DualActionType</name>
    <message>
        <source>NORMAL
(ACTION1 &gt; ACTION2)</source>
        <translation>NORMAL
(ACTION1 &gt; ACTION2)</translation>
    </message>
    <message>
        <source>TOGGLE
(ACTION1 &gt; ACTION2 &gt; ACTION1)</source>
        <translation>BASCULE
(ACTION1 &gt; ACTION2 &gt; ACTION1)</translation>
    </message>
    <message>
        <source>COMBINE
(ACTION1 &gt; ACTION1 + ACTION2)</source>
        <translation>COMBINÉ
(ACTION1 &gt; ACTION1 + ACTION2)</translation>
    </message>
</context>
<context>
    <name>GameCtrlWid</name>
    <message>
        <source>L</source>
        <translation>L</translation>
    </message>
    <message>
        <source>R</source>
        <translation>R</translation>
    </message>
</context>
<context>
    <name>InputUi</name>
    <message>
        <source>MAPPING INPUT</source>
        <translation>TYPE D’ENTRÉE</translation>
    </message>
</context>
<context>
    <name>KeyCodes</name>
    <message>
        <source>KEYBOARD</source>
        <translation>CLAVIER</translation>
    </message>
    <message>
        <source>MOUSE</source>
        <translation>SOURIS</translation>
    </message>
    <message>
        <source>MEDIA</source>
        <translation>MULTIMÉDIA</translation>
    </message>
    <message>
        <source>MACRO</source>
        <translation>MACRO</translation>
    </message>
    <message>
        <source>GAME CONTROLLER</source>
        <translation>MANETTE DE JEU</translation>
    </message>
    <message>
        <source>APPLICATION</source>
        <translation>APPLICATION</translation>
    </message>
    <message>
        <source>DUAL ACTION</source>
        <translation>DOUBLE ACTION</translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation>FONCTIONS PRESSO</translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation>RÉTROÉCLAIRAGE</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>PROFIL</translation>
    </message>
    <message>
        <source>PRESET MODE</source>
        <translation>PRÉRÉGLAGES</translation>
    </message>
    <message>
        <source>DISABLED</source>
        <translation>DÉSACTIVÉE</translation>
    </message>
    <message>
        <source>UNASSIGNED</source>
        <translation>NON ATTRIBUÉE</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>INCONNU</translation>
    </message>
    <message>
        <source>OPEN TASK MANAGER</source>
        <translation>OUVRIR LE GESTIONNAIRE DES TÂCHES</translation>
    </message>
    <message>
        <source>SWITCH BETWEEN OPEN APPS</source>
        <translation>PASSER D’UNE APPLI OUVERTE À L’AUTRE</translation>
    </message>
    <message>
        <source>BROWSER BACKWARD</source>
        <translation>NAVIGATEUR : PAGE PRÉCÉDENTE</translation>
    </message>
    <message>
        <source>BROWSER FORWARD</source>
        <translation>NAVIGATEUR : PAGE SUIVANTE</translation>
    </message>
    <message>
        <source>MOVE UP ONE SCREEN</source>
        <translation>MONTER D’UN ÉCRAN</translation>
    </message>
    <message>
        <source>MOVE DOWN ONE SCREEN</source>
        <translation>DESCENDRE D’UN ÉCRAN</translation>
    </message>
    <message>
        <source>VIEW OPEN APPS</source>
        <translation>AFFICHER LES APPLIS OUVERTES</translation>
    </message>
    <message>
        <source>COPY SELECTED ITEMS TO CLIPBOARD</source>
        <translation>COPIER LA SÉLECTION DANS LE PRESSE-PAPIERS</translation>
    </message>
    <message>
        <source>CUT SELECTED ITEMS</source>
        <translation>COUPER LA SÉLECTION</translation>
    </message>
    <message>
        <source>PASTE CONTENT FROM CLIPBOARD</source>
        <translation>COLLER LE CONTENU DU PRESSE-PAPIERS</translation>
    </message>
    <message>
        <source>SELECT ALL CONTENT</source>
        <translation>TOUT SÉLECTIONNER</translation>
    </message>
    <message>
        <source>UNDO AN ACTION</source>
        <translation>ANNULER UNE ACTION</translation>
    </message>
    <message>
        <source>REDO AN ACTION</source>
        <translation>RÉTABLIR UNE ACTION</translation>
    </message>
    <message>
        <source>DELETE THE SELECTED ITEM AND MOVE IT TO THE RECYCLE BIN</source>
        <translation>METTRE L’ÉLÉMENT SÉLECTIONNÉ À LA CORBEILLE</translation>
    </message>
    <message>
        <source>OPEN THE START MENU</source>
        <translation>OUVRIR LE MENU DÉMARRER</translation>
    </message>
    <message>
        <source>SWITCH THE KEYBOARD LAYOUT</source>
        <translation>CHANGER LA DISPOSITION DU CLAVIER</translation>
    </message>
    <message>
        <source>CLOSE ACTIVE WINDOW</source>
        <translation>FERMER LA FENÊTRE ACTIVE</translation>
    </message>
    <message>
        <source>DISABLE</source>
        <translation>INACTIVE</translation>
    </message>
    <message>
        <source>F13</source>
        <translation>F13</translation>
    </message>
    <message>
        <source>F14</source>
        <translation>F14</translation>
    </message>
    <message>
        <source>F15</source>
        <translation>F15</translation>
    </message>
    <message>
        <source>F16</source>
        <translation>F16</translation>
    </message>
    <message>
        <source>F17</source>
        <translation>F17</translation>
    </message>
    <message>
        <source>F18</source>
        <translation>F18</translation>
    </message>
    <message>
        <source>F19</source>
        <translation>F19</translation>
    </message>
    <message>
        <source>F20</source>
        <translation>F20</translation>
    </message>
    <message>
        <source>F21</source>
        <translation>F21</translation>
    </message>
    <message>
        <source>F22</source>
        <translation>F22</translation>
    </message>
    <message>
        <source>F23</source>
        <translation>F23</translation>
    </message>
    <message>
        <source>F24</source>
        <translation>F24</translation>
    </message>
    <message>
        <source>00</source>
        <translation>00</translation>
    </message>
    <message>
        <source>=</source>
        <translation>=</translation>
    </message>
    <message>
        <source>EFFECT CYCLE+</source>
        <translation>EFFET SUIV.+</translation>
    </message>
    <message>
        <source>Power Mode:Disable</source>
        <translation>Mode d’alimentation:Désactivé</translation>
    </message>
    <message>
        <source>Power Mode:Working</source>
        <translation>Mode d’alimentation:Travail</translation>
    </message>
    <message>
        <source>Power Mode:Performance</source>
        <translation>Mode d’alimentation:Performance</translation>
    </message>
    <message>
        <source>Power Mode:Gaming</source>
        <translation>Mode d’alimentation:Jeu</translation>
    </message>
    <message>
        <source>LED DARKER-</source>
        <translation>ÉCLAT LED-</translation>
    </message>
    <message>
        <source>LED BRIGHTER+</source>
        <translation>ÉCLAT LED+</translation>
    </message>
    <message>
        <source>L TRIGGER</source>
        <translation>GÂCHETTE G</translation>
    </message>
    <message>
        <source>R TRIGGER</source>
        <translation>GÂCHETTE D</translation>
    </message>
    <message>
        <source>E-MAIL</source>
        <translation>E-MAIL</translation>
    </message>
    <message>
        <source>CALCULATOR</source>
        <translation>CALCULATRICE</translation>
    </message>
    <message>
        <source>PLAY/PAUSE</source>
        <translation>LECTURE/PAUSE</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>ARRÊT</translation>
    </message>
    <message>
        <source>PREVIOUS TRACK</source>
        <translation>PISTE PRÉCÉDENTE</translation>
    </message>
    <message>
        <source>NEXT TRACK</source>
        <translation>PISTE SUIVANTE</translation>
    </message>
    <message>
        <source>VOLUME MUTE/UNMUTE</source>
        <translation>COUPER/RÉTABLIR LE SON</translation>
    </message>
    <message>
        <source>VOLUME DOWN</source>
        <translation>VOLUME -</translation>
    </message>
    <message>
        <source>VOLUME UP</source>
        <translation>VOLUME +</translation>
    </message>
    <message>
        <source>WEB BROWSER</source>
        <translation>NAVIGATEUR WEB</translation>
    </message>
    <message>
        <source>CALIBRATE</source>
        <translation>ÉTALONNER</translation>
    </message>
    <message>
        <source>EFFECT CYCLE-</source>
        <translation>EFFET PRÉC.-</translation>
    </message>
    <message>
        <source>SPEED DOWN LED EFFECT-</source>
        <translation>RALENTIR L’EFFET LED-</translation>
    </message>
    <message>
        <source>SPEED UP LED EFFECT+</source>
        <translation>ACCÉLÉRER L’EFFET LED+</translation>
    </message>
    <message>
        <source>D PAD UP RIGHT</source>
        <translation>CROIX HAUT DROITE</translation>
    </message>
    <message>
        <source>D PAD DOWN RIGHT</source>
        <translation>CROIX BAS DROITE</translation>
    </message>
    <message>
        <source>D PAD DOWN LEFT</source>
        <translation>CROIX BAS GAUCHE</translation>
    </message>
    <message>
        <source>D PAD UP LEFT</source>
        <translation>CROIX HAUT GAUCHE</translation>
    </message>
    <message>
        <source>D PAD UP</source>
        <translation>CROIX HAUT</translation>
    </message>
    <message>
        <source>D PAD DOWN</source>
        <translation>CROIX BAS</translation>
    </message>
    <message>
        <source>D PAD LEFT</source>
        <translation>CROIX GAUCHE</translation>
    </message>
    <message>
        <source>D PAD RIGHT</source>
        <translation>CROIX DROITE</translation>
    </message>
    <message>
        <source>A BUTTON</source>
        <translation>TOUCHE A</translation>
    </message>
    <message>
        <source>B BUTTON</source>
        <translation>TOUCHE B</translation>
    </message>
    <message>
        <source>X BUTTON</source>
        <translation>TOUCHE X</translation>
    </message>
    <message>
        <source>Y BUTTON</source>
        <translation>TOUCHE Y</translation>
    </message>
    <message>
        <source>L BUMPER</source>
        <translation>GÂCHETTE HAUTE G</translation>
    </message>
    <message>
        <source>R BUMPER</source>
        <translation>GÂCHETTE HAUTE D</translation>
    </message>
    <message>
        <source>GUIDE BUTTON</source>
        <translation>TOUCHE GUIDE</translation>
    </message>
    <message>
        <source>START BUTTON</source>
        <translation>TOUCHE START</translation>
    </message>
    <message>
        <source>HOME BUTTON</source>
        <translation>TOUCHE HOME</translation>
    </message>
    <message>
        <source>L STICK PRESS</source>
        <translation>CLIC STICK G</translation>
    </message>
    <message>
        <source>R STICK PRESS</source>
        <translation>CLIC STICK D</translation>
    </message>
    <message>
        <source>L STICK LEFT</source>
        <translation>STICK G GAUCHE</translation>
    </message>
    <message>
        <source>L STICK DOWN</source>
        <translation>STICK G BAS</translation>
    </message>
    <message>
        <source>R STICK LEFT</source>
        <translation>STICK D GAUCHE</translation>
    </message>
    <message>
        <source>R STICK DOWN</source>
        <translation>STICK D BAS</translation>
    </message>
    <message>
        <source>CURSOR UP</source>
        <translation>CURSEUR HAUT</translation>
    </message>
    <message>
        <source>CURSOR RIGHT</source>
        <translation>CURSEUR DROITE</translation>
    </message>
    <message>
        <source>CURSOR DOWN</source>
        <translation>CURSEUR BAS</translation>
    </message>
    <message>
        <source>CURSOR LEFT</source>
        <translation>CURSEUR GAUCHE</translation>
    </message>
    <message>
        <source>SCROLL UP</source>
        <translation>DÉFILER HAUT</translation>
    </message>
    <message>
        <source>SCROLL DOWN</source>
        <translation>DÉFILER BAS</translation>
    </message>
    <message>
        <source>LEFT CLICK</source>
        <translation>CLIC GAUCHE</translation>
    </message>
    <message>
        <source>RIGHT CLICK</source>
        <translation>CLIC DROIT</translation>
    </message>
    <message>
        <source>WHEEL CLICK</source>
        <translation>CLIC MOLETTE</translation>
    </message>
    <message>
        <source>BACKWARD</source>
        <translation>PRÉCÉDENT</translation>
    </message>
    <message>
        <source>FORWARD</source>
        <translation>SUIVANT</translation>
    </message>
    <message>
        <source>L STICK RIGHT</source>
        <translation>STICK G DROITE</translation>
    </message>
    <message>
        <source>L STICK UP</source>
        <translation>STICK G HAUT</translation>
    </message>
    <message>
        <source>R STICK RIGHT</source>
        <translation>STICK D DROITE</translation>
    </message>
    <message>
        <source>R STICK UP</source>
        <translation>STICK D HAUT</translation>
    </message>
    <message>
        <source>SCROLL LEFT</source>
        <translation>DÉFILER GAUCHE</translation>
    </message>
    <message>
        <source>SCROLL RIGHT</source>
        <translation>DÉFILER DROITE</translation>
    </message>
    <message>
        <source>PROFILE 1</source>
        <translation>PROFIL 1</translation>
    </message>
    <message>
        <source>PROFILE 2</source>
        <translation>PROFIL 2</translation>
    </message>
    <message>
        <source>PROFILE 3</source>
        <translation>PROFIL 3</translation>
    </message>
    <message>
        <source>PROFILE 4</source>
        <translation>PROFIL 4</translation>
    </message>
    <message>
        <source>PROFILE 5</source>
        <translation>PROFIL 5</translation>
    </message>
    <message>
        <source>PROFILE 6</source>
        <translation>PROFIL 6</translation>
    </message>
    <message>
        <source>PROFILE 7</source>
        <translation>PROFIL 7</translation>
    </message>
    <message>
        <source>PROFILE 8</source>
        <translation>PROFIL 8</translation>
    </message>
    <message>
        <source>PROFILE 9</source>
        <translation>PROFIL 9</translation>
    </message>
    <message>
        <source>PROFILE 10</source>
        <translation>PROFIL 10</translation>
    </message>
    <message>
        <source>PROFILE 11</source>
        <translation>PROFIL 11</translation>
    </message>
    <message>
        <source>PROFILE 12</source>
        <translation>PROFIL 12</translation>
    </message>
    <message>
        <source>PROFILE 13</source>
        <translation>PROFIL 13</translation>
    </message>
    <message>
        <source>PROFILE 14</source>
        <translation>PROFIL 14</translation>
    </message>
    <message>
        <source>PROFILE 15</source>
        <translation>PROFIL 15</translation>
    </message>
    <message>
        <source>PROFILE 16</source>
        <translation>PROFIL 16</translation>
    </message>
    <message>
        <source>PROFILE 17</source>
        <translation>PROFIL 17</translation>
    </message>
    <message>
        <source>PROFILE 18</source>
        <translation>PROFIL 18</translation>
    </message>
    <message>
        <source>PROFILE 19</source>
        <translation>PROFIL 19</translation>
    </message>
    <message>
        <source>PROFILE 20</source>
        <translation>PROFIL 20</translation>
    </message>
    <message>
        <source>PROFILE 21</source>
        <translation>PROFIL 21</translation>
    </message>
    <message>
        <source>PROFILE 22</source>
        <translation>PROFIL 22</translation>
    </message>
    <message>
        <source>PROFILE 23</source>
        <translation>PROFIL 23</translation>
    </message>
    <message>
        <source>PROFILE 24</source>
        <translation>PROFIL 24</translation>
    </message>
    <message>
        <source>PROFILE[+]</source>
        <translation>PROFIL[+]</translation>
    </message>
    <message>
        <source>PROFILE[-]</source>
        <translation>PROFIL[-]</translation>
    </message>
    <message>
        <source>PROFILE CYCLE+</source>
        <translation>PROFIL SUIVANT+</translation>
    </message>
    <message>
        <source>PROFILE CYCLE-</source>
        <translation>PROFIL PRÉCÉDENT-</translation>
    </message>
    <message>
        <source>`</source>
        <translation>`</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>4</source>
        <translation>4</translation>
    </message>
    <message>
        <source>5</source>
        <translation>5</translation>
    </message>
    <message>
        <source>6</source>
        <translation>6</translation>
    </message>
    <message>
        <source>7</source>
        <translation>7</translation>
    </message>
    <message>
        <source>8</source>
        <translation>8</translation>
    </message>
    <message>
        <source>9</source>
        <translation>9</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>[</source>
        <translation>[</translation>
    </message>
    <message>
        <source>]</source>
        <translation>]</translation>
    </message>
    <message>
        <source>\</source>
        <translation>\</translation>
    </message>
    <message>
        <source>;</source>
        <translation>;</translation>
    </message>
    <message>
        <source>&apos;</source>
        <translation>&apos;</translation>
    </message>
    <message>
        <source>,</source>
        <translation>,</translation>
    </message>
    <message>
        <source>.</source>
        <translation>.</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>~</source>
        <translation>~</translation>
    </message>
    <message>
        <source>!</source>
        <translation>!</translation>
    </message>
    <message>
        <source>@</source>
        <translation>@</translation>
    </message>
    <message>
        <source>#</source>
        <translation>#</translation>
    </message>
    <message>
        <source>$</source>
        <translation>$</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>^</source>
        <translation>^</translation>
    </message>
    <message>
        <source>&amp;&amp;</source>
        <translation>&amp;&amp;</translation>
    </message>
    <message>
        <source>*</source>
        <translation>*</translation>
    </message>
    <message>
        <source>(</source>
        <translation>(</translation>
    </message>
    <message>
        <source>)</source>
        <translation>)</translation>
    </message>
    <message>
        <source>_</source>
        <translation>_</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>{</source>
        <translation>{</translation>
    </message>
    <message>
        <source>}</source>
        <translation>}</translation>
    </message>
    <message>
        <source>|</source>
        <translation>|</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>&quot;</source>
        <translation>&quot;</translation>
    </message>
    <message>
        <source>&lt;</source>
        <translation>&lt;</translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation>&gt;</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>UNKNOWN KEY</source>
        <translation>TOUCHE INCONNUE</translation>
    </message>
</context>
<context>
    <name>KeyboardAdvWid</name>
    <message>
        <source>ALPHANUMERIC</source>
        <translation>ALPHANUMÉRIQUE</translation>
    </message>
    <message>
        <source>SYMBOLS &amp;&amp; PUNCTUATION</source>
        <translation>SYMBOLES &amp;&amp; PONCTUATION</translation>
    </message>
    <message>
        <source>NAVIGATION KEYS</source>
        <translation>TOUCHES DE NAVIGATION</translation>
    </message>
    <message>
        <source>MODIFIER</source>
        <translation>MODIFICATEURS</translation>
    </message>
    <message>
        <source>FUNCTION KEYS</source>
        <translation>TOUCHES DE FONCTION</translation>
    </message>
    <message>
        <source>NUMBERPAD KEYS</source>
        <translation>PAVÉ NUMÉRIQUE</translation>
    </message>
</context>
<context>
    <name>MacroAdvUi</name>
    <message>
        <source>USER MACROS</source>
        <translation>MACROS PERSONNELLES</translation>
    </message>
    <message>
        <source>CREATE NEW MACRO</source>
        <translation>NOUVELLE MACRO</translation>
    </message>
    <message>
        <source>WINDOWS KEYBOARD SHORTCUTS</source>
        <translation>RACCOURCIS CLAVIER WINDOWS</translation>
    </message>
</context>
<context>
    <name>MacroAdvWid</name>
    <message>
        <source>CTRL</source>
        <translation>CTRL</translation>
    </message>
    <message>
        <source>SHIFT</source>
        <translation>MAJ</translation>
    </message>
    <message>
        <source>ALT</source>
        <translation>ALT</translation>
    </message>
</context>
<context>
    <name>MacroUi</name>
    <message>
        <source>+ CREATE NEW MACRO</source>
        <translation>+ NOUVELLE MACRO</translation>
    </message>
</context>
<context>
    <name>MediaUi</name>
    <message>
        <source>MULTIMEDIA KEYS</source>
        <translation>TOUCHES MULTIMÉDIA</translation>
    </message>
</context>
<context>
    <name>PanelWid</name>
    <message>
        <source>Keyboard</source>
        <translation>Clavier</translation>
    </message>
    <message>
        <source>Gaming</source>
        <translation>Jeu</translation>
    </message>
    <message>
        <source>Creative Application</source>
        <translation>Applis créatives</translation>
    </message>
    <message>
        <source>Standard WASD</source>
        <translation>WASD standard</translation>
    </message>
    <message>
        <source>Standard ESDF</source>
        <translation>ESDF standard</translation>
    </message>
    <message>
        <source>Numpad Mode</source>
        <translation>Pavé numérique</translation>
    </message>
    <message>
        <source>FPS Mode</source>
        <translation>Mode FPS</translation>
    </message>
    <message>
        <source>Driving Mode</source>
        <translation>Mode conduite</translation>
    </message>
    <message>
        <source>Adv. Flight Mode</source>
        <translation>Mode vol (avancé)</translation>
    </message>
    <message>
        <source>Photoshop</source>
        <translation>Photoshop</translation>
    </message>
    <message>
        <source>Illustrator</source>
        <translation>Illustrator</translation>
    </message>
    <message>
        <source>Premiere Pro</source>
        <translation>Premiere Pro</translation>
    </message>
</context>
<context>
    <name>PressoFunUi</name>
    <message>
        <source>DEADZONE CALIBRATION</source>
        <translation>ÉTALONNAGE DE LA ZONE MORTE</translation>
    </message>
</context>
<context>
    <name>PressoUi</name>
    <message>
        <source>PRESSURE</source>
        <translation>CAPTEUR DE</translation>
    </message>
    <message>
        <source>SENSING</source>
        <translation>PRESSION</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>OUI</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>NON</translation>
    </message>
</context>
<context>
    <name>ProfileUi</name>
    <message>
        <source>PROFILE</source>
        <translation>PROFIL</translation>
    </message>
</context>
<context>
    <name>ReassignDlg</name>
    <message>
        <source>KEY ASSIGNMENT</source>
        <translation>ATTRIBUTION DE TOUCHE</translation>
    </message>
    <message>
        <source>KEY ASSIGNMENT - VANTRIX </source>
        <translation>ATTRIBUTION DE TOUCHE - VANTRIX </translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>FERMER</translation>
    </message>
    <message>
        <source>SEARCH</source>
        <translation>RECHERCHER</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULER</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>APPLIQUER</translation>
    </message>
    <message>
        <source>MOUSE BUTTONS</source>
        <translation>BOUTONS DE SOURIS</translation>
    </message>
    <message>
        <source>MEDIA COMMANDS</source>
        <translation>COMMANDES MULTIMÉDIA</translation>
    </message>
    <message>
        <source>PRESSO FUNCTIONS</source>
        <translation>FONCTIONS PRESSO</translation>
    </message>
    <message>
        <source>BACKLIGHT</source>
        <translation>RÉTROÉCLAIRAGE</translation>
    </message>
    <message>
        <source>PROFILE</source>
        <translation>PROFIL</translation>
    </message>
</context>
<context>
    <name>VantrixMapWid</name>
    <message>
        <source>SIMPLE</source>
        <translation>SIMPLE</translation>
    </message>
    <message>
        <source>ADVANCED</source>
        <translation>AVANCÉ</translation>
    </message>
    <message>
        <source>APPLY</source>
        <translation>APPLIQUER</translation>
    </message>
    <message>
        <source>RESET</source>
        <translation>RÉINITIALISER</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Are you sure you want to reset?</source>
        <translation>Voulez-vous vraiment réinitialiser ?</translation>
    </message>
</context>
</TS>
