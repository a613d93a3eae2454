-- Sample data, first file: persons, units, classes, catalogues. All names are invented.
-- Valid on a SQL Server and on the embedded engine; dates are 'yyyymmdd', which every login reads alike.

-- Own companies, for which contracts are made. The third is no longer in use.
SET IDENTITY_INSERT PERSONAL ON
INSERT INTO PERSONAL (ID_PERSONAL, NUMMER, KURZBEZEICHNUNG, ANREDE, [NAME], STRASSE, PLZ, ORT, EMAIL, TELEFON, [DISABLE], MANDANT) VALUES
(1, 100, 'Forstgemeinschaft Grüntal', 'Firma', 'Forstgemeinschaft Grüntal', 'Waldstraße 1', '8700', 'Leoben', 'office@gruental.example', '+43 3842 555 100', NULL, 1),
(2, 101, 'Holzkontor Ennsblick', 'Firma', 'Holzkontor Ennsblick', 'Bahnhofplatz 7', '8940', 'Liezen', 'kontor@ennsblick.example', '+43 3612 555 200', 0, 1),
(3, 102, 'Altmandant Murtal', 'Firma', 'Altmandant Murtal', 'Hauptplatz 3', '8850', 'Murau', NULL, NULL, 1, 1)

-- Customers of the sales contracts (type R); one is disabled, one belongs to access level 5.
INSERT INTO PERSONAL (ID_PERSONAL, NUMMER, KURZBEZEICHNUNG, ANREDE, [NAME], VORNAME, POSTFACH, STRASSE, PLZ, ORT, EMAIL, TELEFON, HANDY, [DISABLE], ID_ACCESS_LEVELS, KUNDE) VALUES
(10, 2010, 'Sägewerk Kärnthaler', 'Firma', 'Sägewerk Kärnthaler', NULL, 'Postfach 12', 'Industriestraße 14', '9400', 'Wolfsberg', 'einkauf@kaernthaler.example', '+43 4352 555 10', NULL, NULL, NULL, 1),
(11, 2011, 'D''Angelo Legnami', 'Herr', 'D''Angelo', 'Giuseppe', NULL, 'Draulände 22', '9500', 'Villach', 'giuseppe@dangelo.example', '+43 4242 555 11', '+43 664 555 0011', NULL, NULL, 1),
(12, 2012, 'Zellstoff Möderbrugg', 'Firma', 'Zellstoff Möderbrugg', NULL, 'Postfach 3', 'Werkstraße 2', '8750', 'Judenburg', 'holz@zellstoff-moederbrugg.example', '+43 3572 555 12', NULL, 0, NULL, 1),
(13, 2013, 'Papier Ötscherland', 'Firma', 'Papier Ötscherland', NULL, NULL, 'Ybbsufer 40', '3300', 'Amstetten', 'rundholz@oetscherland.example', '+43 7472 555 13', NULL, 0, NULL, 1),
(14, 2014, 'Biomasse Wörgl', 'Firma', 'Biomasse Wörgl', NULL, NULL, 'Innstraße 9', '6300', 'Wörgl', NULL, '+43 5332 555 14', NULL, 0, NULL, 1),
(15, 2015, 'Tischlerei Großmann', 'Frau', 'Großmann', 'Dörte', NULL, 'Ilzleite 5', '94034', 'Passau', 'd.grossmann@tischlerei.example', '+49 851 555 15', '+49 171 555 0015', 0, 5, 1),
(16, 2016, 'Jäger Rundholz', 'Herr', 'Jäger', 'Konrad', NULL, 'Donaukai 1', '94469', 'Deggendorf', NULL, NULL, NULL, 1, NULL, 1)

-- Forest helpers (ABRECH2). Number 3005 is disabled; 3002 and 3007 have no mail address.
INSERT INTO PERSONAL (ID_PERSONAL, NUMMER, KURZBEZEICHNUNG, ANREDE, [NAME], VORNAME, STRASSE, PLZ, ORT, EMAIL, TELEFON, HANDY, [DISABLE], ABRECH2) VALUES
(20, 3001, 'Huber Josef', 'Herr', 'Huber', 'Josef', 'Sonnleiten 4', '8600', 'Bruck an der Mur', 'josef.huber@helfer.example', '+43 3862 555 20', '+43 664 555 0020', NULL, 1),
(21, 3002, 'Müller Käthe', 'Frau', 'Müller', 'Käthe', 'Am Bühel 17', '8680', 'Mürzzuschlag', NULL, '+43 3852 555 21', '+43 664 555 0021', 0, 1),
(22, 3003, 'Öllinger Franz', 'Herr', 'Öllinger', 'Franz', 'Schattseite 2', '8792', 'Sankt Peter-Freienstein', 'franz.oellinger@helfer.example', NULL, '+43 664 555 0022', 0, 1),
(23, 3004, 'Bäumler Agnes', 'Frau', 'Bäumler', 'Agnes', 'Grabenweg 31', '8713', 'Sankt Stefan ob Leoben', 'agnes.baeumler@helfer.example', NULL, '+43 664 555 0023', 0, 1),
(24, 3005, 'Steiner Alois', 'Herr', 'Steiner', 'Alois', 'Dorf 8', '8770', 'Sankt Michael', 'alois.steiner@helfer.example', NULL, NULL, 1, 1),
(25, 3006, 'Straßer Günther', 'Herr', 'Straßer', 'Günther', 'Lindenallee 3', '8720', 'Knittelfeld', 'guenther.strasser@helfer.example', NULL, '+43 664 555 0025', 0, 1),
(26, 3007, 'Ünal Deniz', 'Herr', 'Ünal', 'Deniz', 'Murweg 12', '8740', 'Zeltweg', NULL, NULL, '+43 664 555 0026', NULL, 1)

-- Sixty more, all on one contract. Their numbers run in another order than their keys, some
-- are called by their farm, every ninth has no mail address.
INSERT INTO PERSONAL (ID_PERSONAL, NUMMER, KURZBEZEICHNUNG, ANREDE, [NAME], VORNAME, STRASSE, PLZ, ORT, EMAIL, TELEFON, HANDY, [DISABLE], ABRECH2) VALUES
(60, 3011, 'Abfalter Anton', 'Herr', 'Abfalter', 'Anton', 'Almweg 1', '4082', 'Aschach', 'anton.abfalter@helfer.example', '+43 3000 555 100', '+43 664 555 1000', NULL, 1),
(61, 3048, 'Baumgartner Brigitte', 'Frau', 'Baumgartner', 'Brigitte', 'Erlengrund 6', '8190', 'Birkfeld', 'brigitte.baumgartner@helfer.example', NULL, '+43 664 555 1003', 0, 1),
(62, 3027, 'Czerny Christian', 'Herr', 'Czerny', 'Christian', 'Hammerweg 11', '8700', 'Donawitz', 'christian.czerny@helfer.example', '+43 3014 555 102', NULL, NULL, 1),
(63, 3064, 'Dornauer vlg. Bergerhof', 'Frau', 'Dornauer', 'Doris', 'Mühlgang 16', '8820', 'Dürnstein', 'doris.dornauer@helfer.example', '+43 3021 555 103', '+43 664 555 1009', 0, 1),
(64, 3043, 'Ebner Eduard', 'Herr', 'Ebner', 'Eduard', 'Bachgasse 21', '8790', 'Eisenerz', NULL, '+43 3028 555 104', '+43 664 555 1012', NULL, 1),
(65, 3022, 'Feichtinger Franziska', 'Frau', 'Feichtinger', 'Franziska', 'Forstweg 26', '8694', 'Frein', 'franziska.feichtinger@helfer.example', NULL, '+43 664 555 1015', 0, 1),
(66, 3059, 'Gasser Gottfried', 'Herr', 'Gasser', 'Gottfried', 'Kirchplatz 31', '8731', 'Gaal', 'gottfried.gasser@helfer.example', '+43 3042 555 106', '+43 664 555 1018', NULL, 1),
(67, 3038, 'Hasler Hermine', 'Frau', 'Hasler', 'Hermine', 'Oberdorf 36', '8774', 'Hinterberg', 'hermine.hasler@helfer.example', '+43 3049 555 107', NULL, 0, 1),
(68, 3017, 'Innerhofer Isidor', 'Herr', 'Innerhofer', 'Isidor', 'Dorfstraße 41', '8952', 'Irdning', 'isidor.innerhofer@helfer.example', '+43 3056 555 108', '+43 664 555 1024', NULL, 1),
(69, 3054, 'Jungwirth Johanna', 'Frau', 'Jungwirth', 'Johanna', 'Grubenstraße 3', '8912', 'Johnsbach', 'johanna.jungwirth@helfer.example', NULL, '+43 664 555 1027', 0, 1),
(70, 3033, 'Kaltenegger vlg. Hiasbauer', 'Herr', 'Kaltenegger', 'Konrad', 'Lindenweg 8', '8775', 'Kalwang', 'konrad.kaltenegger@helfer.example', '+43 3070 555 110', '+43 664 555 1030', NULL, 1),
(71, 3012, 'Leitgeb Leopoldine', 'Frau', 'Leitgeb', 'Leopoldine', 'Almweg 13', '8931', 'Landl', 'leopoldine.leitgeb@helfer.example', '+43 3077 555 111', '+43 664 555 1033', 0, 1),
(72, 3049, 'Moser Matthäus', 'Herr', 'Moser', 'Matthäus', 'Erlengrund 18', '8774', 'Mautern', 'matthaeus.moser@helfer.example', '+43 3084 555 112', NULL, NULL, 1),
(73, 3028, 'Neuhold Notburga', 'Frau', 'Neuhold', 'Notburga', 'Hammerweg 23', '8692', 'Neuberg', NULL, NULL, '+43 664 555 1039', 0, 1),
(74, 3065, 'Obersteiner Oswald', 'Herr', 'Obersteiner', 'Oswald', 'Mühlgang 28', '8762', 'Oberzeiring', 'oswald.obersteiner@helfer.example', '+43 3098 555 114', '+43 664 555 1042', NULL, 1),
(75, 3044, 'Pichler Paula', 'Frau', 'Pichler', 'Paula', 'Bachgasse 33', '8761', 'Pöls', 'paula.pichler@helfer.example', '+43 3105 555 115', '+43 664 555 1045', 0, 1),
(76, 3023, 'Quester Quirin', 'Herr', 'Quester', 'Quirin', 'Forstweg 38', '8720', 'Rachau', 'quirin.quester@helfer.example', '+43 3112 555 116', '+43 664 555 1048', NULL, 1),
(77, 3060, 'Reiter vlg. Moarhof', 'Frau', 'Reiter', 'Rosalia', 'Kirchplatz 43', '8786', 'Rottenmann', 'rosalia.reiter@helfer.example', NULL, NULL, 0, 1),
(78, 3039, 'Schweiger Sepp', 'Herr', 'Schweiger', 'Sepp', 'Oberdorf 5', '8732', 'Seckau', 'sepp.schweiger@helfer.example', '+43 3126 555 118', '+43 664 555 1054', NULL, 1),
(79, 3018, 'Tiefenbacher Theresia', 'Frau', 'Tiefenbacher', 'Theresia', 'Dorfstraße 10', '8784', 'Trieben', 'theresia.tiefenbacher@helfer.example', '+43 3133 555 119', '+43 664 555 1057', 0, 1),
(80, 3055, 'Unterberger Ulrich', 'Herr', 'Unterberger', 'Ulrich', 'Grubenstraße 15', '8800', 'Unzmarkt', 'ulrich.unterberger@helfer.example', '+43 3140 555 120', '+43 664 555 1060', NULL, 1),
(81, 3034, 'Vollmann Valerie', 'Frau', 'Vollmann', 'Valerie', 'Lindenweg 20', '8664', 'Veitsch', 'valerie.vollmann@helfer.example', NULL, '+43 664 555 1063', 0, 1),
(82, 3013, 'Wieser Wendelin', 'Herr', 'Wieser', 'Wendelin', 'Almweg 25', '8781', 'Wald am Schoberpaß', NULL, '+43 3154 555 122', NULL, NULL, 1),
(83, 3050, 'Zeiler Zita', 'Frau', 'Zeiler', 'Zita', 'Erlengrund 30', '8820', 'Zeutschach', 'zita.zeiler@helfer.example', '+43 3161 555 123', '+43 664 555 1069', 0, 1),
(84, 3029, 'Auer vlg. Oberreit', 'Herr', 'Auer', 'Albin', 'Hammerweg 35', '8623', 'Aflenz', 'albin.auer@helfer.example', '+43 3168 555 124', '+43 664 555 1072', NULL, 1),
(85, 3066, 'Brandstätter Berta', 'Frau', 'Brandstätter', 'Berta', 'Mühlgang 40', '2673', 'Breitenstein', 'berta.brandstaetter@helfer.example', NULL, '+43 664 555 1075', 0, 1),
(86, 3045, 'Dirnböck Dominik', 'Herr', 'Dirnböck', 'Dominik', 'Bachgasse 2', '8143', 'Dobl', 'dominik.dirnboeck@helfer.example', '+43 3182 555 126', '+43 664 555 1078', NULL, 1),
(87, 3024, 'Eder Elfriede', 'Frau', 'Eder', 'Elfriede', 'Forstweg 7', '8583', 'Edelschrott', 'elfriede.eder@helfer.example', '+43 3189 555 127', NULL, 0, 1),
(88, 3061, 'Fuchs Ferdinand', 'Herr', 'Fuchs', 'Ferdinand', 'Kirchplatz 12', '8753', 'Fohnsdorf', 'ferdinand.fuchs@helfer.example', '+43 3196 555 128', '+43 664 555 1084', NULL, 1),
(89, 3040, 'Grabner Gerlinde', 'Frau', 'Grabner', 'Gerlinde', 'Oberdorf 17', '8922', 'Gams', 'gerlinde.grabner@helfer.example', NULL, '+43 664 555 1087', 0, 1),
(90, 3019, 'Hölzl Heinrich', 'Herr', 'Hölzl', 'Heinrich', 'Dorfstraße 22', '8920', 'Hieflau', 'heinrich.hoelzl@helfer.example', '+43 3210 555 130', '+43 664 555 1090', NULL, 1),
(91, 3056, 'Illmaier vlg. Steinwender', 'Frau', 'Illmaier', 'Ingeborg', 'Grubenstraße 27', '8262', 'Ilz', NULL, '+43 3217 555 131', '+43 664 555 1093', 0, 1),
(92, 3035, 'Jöbstl Jakob', 'Herr', 'Jöbstl', 'Jakob', 'Lindenweg 32', '8091', 'Jagerberg', 'jakob.joebstl@helfer.example', '+43 3224 555 132', NULL, NULL, 1),
(93, 3014, 'Koller Katharina', 'Frau', 'Koller', 'Katharina', 'Almweg 37', '8650', 'Kindberg', 'katharina.koller@helfer.example', NULL, '+43 664 555 1099', 0, 1),
(94, 3051, 'Lechner Ludwig', 'Herr', 'Lechner', 'Ludwig', 'Erlengrund 42', '8665', 'Langenwang', 'ludwig.lechner@helfer.example', '+43 3238 555 134', '+43 664 555 1102', NULL, 1),
(95, 3030, 'Mitteregger Martha', 'Frau', 'Mitteregger', 'Martha', 'Hammerweg 4', '8630', 'Mariazell', 'martha.mitteregger@helfer.example', '+43 3245 555 135', '+43 664 555 1105', 0, 1),
(96, 3067, 'Nöst Norbert', 'Herr', 'Nöst', 'Norbert', 'Mühlgang 9', '8712', 'Niklasdorf', 'norbert.noest@helfer.example', '+43 3252 555 136', '+43 664 555 1108', NULL, 1),
(97, 3046, 'Ofner Otti', 'Frau', 'Ofner', 'Otti', 'Bachgasse 14', '8600', 'Oberaich', 'otti.ofner@helfer.example', NULL, NULL, 0, 1),
(98, 3025, 'Prettenthaler vlg. Taxbauer', 'Herr', 'Prettenthaler', 'Pankraz', 'Forstweg 19', '8132', 'Pernegg', 'pankraz.prettenthaler@helfer.example', '+43 3266 555 138', '+43 664 555 1114', NULL, 1),
(99, 3062, 'Ranftl Renate', 'Frau', 'Ranftl', 'Renate', 'Kirchplatz 24', '8673', 'Ratten', 'renate.ranftl@helfer.example', '+43 3273 555 139', '+43 664 555 1117', 0, 1),
(100, 3041, 'Sailer Siegfried', 'Herr', 'Sailer', 'Siegfried', 'Oberdorf 29', '8684', 'Spital', NULL, '+43 3280 555 140', '+43 664 555 1120', NULL, 1),
(101, 3020, 'Taferner Trude', 'Frau', 'Taferner', 'Trude', 'Dorfstraße 34', '8833', 'Teufenbach', 'trude.taferner@helfer.example', NULL, '+43 664 555 1123', 0, 1),
(102, 3057, 'Uller Urban', 'Herr', 'Uller', 'Urban', 'Grubenstraße 39', '8600', 'Utsch', 'urban.uller@helfer.example', '+43 3294 555 142', NULL, NULL, 1),
(103, 3036, 'Vogl Veronika', 'Frau', 'Vogl', 'Veronika', 'Lindenweg 1', '8570', 'Voitsberg', 'veronika.vogl@helfer.example', '+43 3301 555 143', '+43 664 555 1129', 0, 1),
(104, 3015, 'Wagner Walter', 'Herr', 'Wagner', 'Walter', 'Almweg 6', '8633', 'Weichselboden', 'walter.wagner@helfer.example', '+43 3308 555 144', '+43 664 555 1132', NULL, 1),
(105, 3052, 'Zechner vlg. Zirmhof', 'Frau', 'Zechner', 'Zäzilia', 'Erlengrund 11', '8740', 'Zeltweg', 'zaezilia.zechner@helfer.example', NULL, '+43 664 555 1135', 0, 1),
(106, 3031, 'Aigelsreiter Alfons', 'Herr', 'Aigelsreiter', 'Alfons', 'Hammerweg 16', '8691', 'Altenberg', 'alfons.aigelsreiter@helfer.example', '+43 3322 555 146', '+43 664 555 1138', NULL, 1),
(107, 3068, 'Bacher Barbara', 'Frau', 'Bacher', 'Barbara', 'Mühlgang 21', '8763', 'Bretstein', 'barbara.bacher@helfer.example', '+43 3329 555 147', NULL, 0, 1),
(108, 3047, 'Ellmaier Ernst', 'Herr', 'Ellmaier', 'Ernst', 'Bachgasse 26', '8622', 'Etmißl', 'ernst.ellmaier@helfer.example', '+43 3336 555 148', '+43 664 555 1144', NULL, 1),
(109, 3026, 'Froschauer Friederike', 'Frau', 'Froschauer', 'Friederike', 'Forstweg 31', '8841', 'Frojach', NULL, NULL, '+43 664 555 1147', 0, 1),
(110, 3063, 'Grössing Georg', 'Herr', 'Grössing', 'Georg', 'Kirchplatz 36', '8734', 'Großlobming', 'georg.groessing@helfer.example', '+43 3350 555 150', '+43 664 555 1150', NULL, 1),
(111, 3042, 'Hirzberger Hedwig', 'Frau', 'Hirzberger', 'Hedwig', 'Oberdorf 41', '8785', 'Hohentauern', 'hedwig.hirzberger@helfer.example', '+43 3357 555 151', '+43 664 555 1153', 0, 1),
(112, 3021, 'Jansenberger vlg. Bergerhof', 'Frau', 'Jansenberger', 'Josefa', 'Dorfstraße 3', '8750', 'Judenburg', 'josefa.jansenberger@helfer.example', '+43 3364 555 152', NULL, NULL, 1),
(113, 3058, 'Kreuzer Kilian', 'Herr', 'Kreuzer', 'Kilian', 'Grubenstraße 8', '8854', 'Krakaudorf', 'kilian.kreuzer@helfer.example', NULL, '+43 664 555 1159', 0, 1),
(114, 3037, 'Lackner Lukas', 'Herr', 'Lackner', 'Lukas', 'Lindenweg 13', '8770', 'Liesingau', 'lukas.lackner@helfer.example', '+43 3378 555 154', '+43 664 555 1162', NULL, 1),
(115, 3016, 'Mandl Magdalena', 'Frau', 'Mandl', 'Magdalena', 'Almweg 18', '8693', 'Krampen', 'magdalena.mandl@helfer.example', '+43 3385 555 155', '+43 664 555 1165', 0, 1),
(116, 3053, 'Oberer Ottokar', 'Herr', 'Oberer', 'Ottokar', 'Erlengrund 23', '8742', 'Obdach', 'ottokar.oberer@helfer.example', '+43 3392 555 156', '+43 664 555 1168', NULL, 1),
(117, 3032, 'Schrittwieser Sophie', 'Frau', 'Schrittwieser', 'Sophie', 'Hammerweg 28', '8684', 'Spital am Semmering', 'sophie.schrittwieser@helfer.example', NULL, NULL, 0, 1),
(118, 3070, 'Trummer Tobias', 'Herr', 'Trummer', 'Tobias', 'Mühlgang 33', '8625', 'Turnau', NULL, '+43 3406 555 158', '+43 664 555 1174', NULL, 1),
(119, 3069, 'Winkler vlg. Hiasbauer', 'Frau', 'Winkler', 'Walburga', 'Bachgasse 38', '8924', 'Wildalpen', 'walburga.winkler@helfer.example', '+43 3413 555 159', '+43 664 555 1177', 0, 1)

-- Forest owners, from whom timber is bought (type A1); two of them also sell on the stump (type A6).
INSERT INTO PERSONAL (ID_PERSONAL, NUMMER, KURZBEZEICHNUNG, ANREDE, [NAME], VORNAME, STRASSE, PLZ, ORT, EMAIL, [DISABLE], ABRECH1, ABRECH6) VALUES
(30, 4001, 'Gruber Maria', 'Frau', 'Gruber', 'Maria', 'Hochegg 1', '8614', 'Breitenau', 'maria.gruber@wald.example', NULL, 1, 0),
(31, 4002, 'Lärchbauer Peter', 'Herr', 'Lärchbauer', 'Peter', 'Lärchkogel 6', '8632', 'Gußwerk', NULL, 0, 1, 1),
(32, 4003, 'Köck Elfriede', 'Frau', 'Köck', 'Elfriede', 'Zirbenweg 9', '8812', 'Mariahof', NULL, 0, 1, NULL),
(33, 4004, 'Zöhrer Karl', 'Herr', 'Zöhrer', 'Karl', 'Tannhof 2', '8742', 'Obdach', 'karl.zoehrer@wald.example', 0, 1, 1)

-- Carriers, harvesters, cable yarding, scalers, agents (types A3 to A8).
INSERT INTO PERSONAL (ID_PERSONAL, NUMMER, KURZBEZEICHNUNG, ANREDE, [NAME], STRASSE, PLZ, ORT, TELEFON, [DISABLE], ABRECH3, ABRECH4, ABRECH5, ABRECH7, ABRECH8) VALUES
(40, 5001, 'Fuhrwerk Reisinger', 'Firma', 'Fuhrwerk Reisinger', 'Mautweg 5', '8700', 'Leoben', '+43 3842 555 40', NULL, 1, NULL, NULL, NULL, NULL),
(41, 5002, 'Fuhrwerk Wögerbauer', 'Firma', 'Fuhrwerk Wögerbauer', 'Güterweg 8', '4150', 'Rohrbach', '+43 7289 555 41', 0, 1, NULL, NULL, NULL, NULL),
(42, 5101, 'Holzernte Aigner', 'Firma', 'Holzernte Aigner', 'Forststraße 20', '8911', 'Admont', '+43 3613 555 42', 0, NULL, 1, NULL, NULL, NULL),
(43, 5201, 'Seilbringung Kögl', 'Firma', 'Seilbringung Kögl', 'Bergweg 3', '8970', 'Schladming', NULL, 0, NULL, NULL, 1, NULL, NULL),
(44, 5301, 'Messdienst Plöderl', 'Herr', 'Plöderl', 'Ring 14', '8010', 'Graz', NULL, 0, NULL, NULL, NULL, 1, NULL),
(45, 5401, 'Agentur Traxl', 'Frau', 'Traxl', 'Seegasse 2', '4810', 'Gmunden', NULL, 0, NULL, NULL, NULL, NULL, 1)

-- Delivery addresses and the customer that they belong to. The last is disabled.
INSERT INTO PERSONAL (ID_PERSONAL, NUMMER, KURZBEZEICHNUNG, [NAME], STRASSE, PLZ, ORT, [DISABLE], LIEFERADRESSE, ID_PERSONAL_BESITZER) VALUES
(50, 6001, 'Werk Wolfsberg', 'Werk Wolfsberg, Tor 2', 'Industriestraße 16', '9400', 'Wolfsberg', NULL, 1, 10),
(51, 6002, 'Werk St. Andrä', 'Werk St. Andrä, Rundholzplatz', 'Lavantweg 1', '9433', 'St. Andrä', 0, 1, 10),
(52, 6003, 'Lager Villach', 'Lager Villach', 'Draulände 24', '9500', 'Villach', 0, 1, 11),
(53, 6004, 'Holzplatz Judenburg', 'Holzplatz Judenburg', 'Werkstraße 4', '8750', 'Judenburg', 0, 1, 12),
(54, 6005, 'Heizwerk Wörgl', 'Heizwerk Wörgl, Waage Süd', 'Innstraße 11', '6300', 'Wörgl', 0, 1, 14),
(55, 6006, 'Werk Gmünd', 'Werk Gmünd (aufgelassen)', 'Fabriksgasse 1', '3950', 'Gmünd', 1, 1, 12)
SET IDENTITY_INSERT PERSONAL OFF
GO

-- Units. 'Stunde' is no unit of timber; 'Bund' has no measure, so nothing can be counted in it.
SET IDENTITY_INSERT WARENEINHEIT ON
INSERT INTO WARENEINHEIT (EINHEIT_ID, EINHEIT, HOLZ, LDNR, FM, RM, SRM, GEWICHT_ATRO, GEWICHT_LUTRO, STUCK, HSTUCK) VALUES
(1, 'Fm', 1, 10, 1, 0, 0, 0, 0, 0, 0),
(2, 'Rm', 1, 30, 0, 1, 0, 0, 0, 0, 0),
(3, 'SRm', 1, 40, 0, 0, 1, 0, 0, 0, 0),
(4, 'atro-t', 1, 50, NULL, NULL, NULL, 1, NULL, NULL, NULL),
(5, 'lutro-t', 1, 60, NULL, NULL, NULL, NULL, 1, NULL, NULL),
(6, 'Stück', 1, 70, 0, 0, 0, 0, 0, 1, 0),
(7, '100 Stück', 1, 80, 0, 0, 0, 0, 0, 0, 1),
(8, 'Fm o.R.', 1, 20, 1, 0, 0, 0, 0, 0, 0),
(9, 'Stunde', 0, 90, NULL, NULL, NULL, NULL, NULL, NULL, NULL),
(10, 'Bund', 1, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL)
SET IDENTITY_INSERT WARENEINHEIT OFF
GO

SET IDENTITY_INSERT BUCHNR ON
INSERT INTO BUCHNR (BUCHNR_ID, BUCHUNGSTEXT) VALUES
(1, 'Holzverkauf 20 %'),
(2, 'Holzverkauf EU steuerfrei'),
(3, 'Holzeinkauf 13 %'),
(4, 'Dienstleistung 20 %'),
(5, 'Frachterlöse')
SET IDENTITY_INSERT BUCHNR OFF
SET IDENTITY_INSERT RECHNUNGSART ON
INSERT INTO RECHNUNGSART (RART_ID, RECHNUNGSART) VALUES
(1, 'Rechnung'),
(2, 'Gutschrift'),
(3, 'Sammelrechnung'),
(4, 'Barverkauf'),
(5, 'Stornorechnung für Käufer')
SET IDENTITY_INSERT RECHNUNGSART OFF
GO

-- The classes that a selection names. Disabled ones are still found on old logs.
SET IDENTITY_INSERT HOLZART ON
INSERT INTO HOLZART (ID, HA, BEZEICHNUNG, [DISABLE]) VALUES
(1, 'FI', 'Fichte', NULL),
(2, 'TA', 'Tanne', 0),
(3, 'KI', 'Kiefer', 0),
(4, 'LA', 'Lärche', 0),
(5, 'DG', 'Douglasie', 0),
(6, 'BU', 'Buche', 0),
(7, 'EI', 'Eiche', 0),
(8, 'ES', 'Esche', 1),
(9, 'AH', 'Ahorn', NULL),
(10, 'BI', 'Birke', 1)
SET IDENTITY_INSERT HOLZART OFF
SET IDENTITY_INSERT HOLZSORTE ON
INSERT INTO HOLZSORTE (ID, HS, BEZEICHNUNG, [DISABLE]) VALUES
(1, 'L', 'Langholz', NULL),
(2, 'B', 'Blochholz', 0),
(3, 'S', 'Schleifholz', 0),
(4, 'F', 'Faserholz', 0),
(5, 'W', 'Waldhackgut', 0),
(6, 'ST', 'Stangen', 0),
(7, 'BR', 'Brennholz', NULL),
(8, 'GR', 'Grubenholz', 1)
SET IDENTITY_INSERT HOLZSORTE OFF
SET IDENTITY_INSERT GUETEKLASSE ON
INSERT INTO GUETEKLASSE (ID, GKL, BEZEICHNUNG, [DISABLE]) VALUES
(1, 'A', 'Ausgesuchte Ware', NULL),
(2, 'B', 'Normale Güte', 0),
(3, 'C', 'Fehlerhafte Güte', 0),
(4, 'CX', 'Käferholz und Bruch', 0),
(5, 'D', 'Sägefähig', 0),
(6, 'AUS', 'Ausschuss', 1)
SET IDENTITY_INSERT GUETEKLASSE OFF
SET IDENTITY_INSERT STKL ON
INSERT INTO STKL (ID, STKL, BEZEICHNUNG, [DISABLE]) VALUES
(1, '1a', '10 bis 14 cm', NULL),
(2, '1b', '15 bis 19 cm', 0),
(3, '2a', '20 bis 24 cm', 0),
(4, '2b', '25 bis 29 cm', 0),
(5, '3a', '30 bis 34 cm', 0),
(6, '3b', '35 bis 39 cm', 0),
(7, '4', '40 bis 49 cm', 0),
(8, '5', '50 cm und mehr', 0),
(9, '6', 'Übermaß', 1)
SET IDENTITY_INSERT STKL OFF
GO

-- The first statistic has an empty text: a line that shows it has none. Number 15 is not offered.
INSERT INTO STATISTIK (STATISTIK_ID, [TEXT]) VALUES
(0, ''),
(1, 'Mengenstaffel'),
(2, 'Rindenabzug'),
(3, 'Güteabschlag'),
(4, 'Zuschlag zertifiziert'),
(5, 'Fracht'),
(6, 'Manipulation'),
(7, 'Wegebenützung'),
(8, 'Rabatt'),
(9, 'Bonus'),
(10, 'Provision'),
(11, 'Verbandsbeitrag'),
(12, 'Vermessung'),
(13, 'Skonto'),
(14, 'Rundung'),
(15, NULL)
GO

SET IDENTITY_INSERT WARENKATALOG ON
INSERT INTO WARENKATALOG (ART_ID, BEZEICH1, ID_FORMULA, EINHPREIS, SUBSET_DEF) VALUES
(1, 'Frachtkostenersatz', 2, 8.5, NULL),
(2, 'Rindenabzug Fichte', 1, -10, '83 IN (''FI'') ;'),
(3, 'Käferholzabschlag', 1, -25.75, '83 IN (''FI'', ''KI'') ;90 IN (''CX'') ;'),
(4, 'Verbandsbeitrag', 3, 0.4, NULL),
(5, 'Vermessung je Stück', 4, 1.235, NULL),
(6, 'Zuschlag für zertifiziertes Rundholz aus bäuerlichem Wald', 1, 2.5, '87 IN (''L'') ;')
INSERT INTO WARENKATALOG (ART_ID, BEZEICH1, ID_FORMULA, EINHPREIS, SUBSET_DEF, VER_TYPE, ID_ACCESS_LEVELS, [DISABLE]) VALUES
(7, 'Dieselzuschlag', 2, 0.35, NULL, 'A3', NULL, NULL),
(8, 'Mautersatz bis 2023', 2, 1.1, NULL, NULL, NULL, 1),
(9, 'Vertriebsprovision', 3, 1.75, NULL, NULL, 5, 0)
SET IDENTITY_INSERT WARENKATALOG OFF
GO

-- Models of surcharge and deduction lines.
SET IDENTITY_INSERT WORKBENCH_MODEL ON
INSERT INTO WORKBENCH_MODEL (ID_MODEL, CATEGORY, MODEL) VALUES
(1, 'ABSCHLAG', 'Sägewerk Standard'),
(2, 'ABSCHLAG', 'Industrieholz frei Werk'),
(3, 'ABSCHLAG1', 'Einkauf Kleinwald'),
(4, 'ABSCHLAG1', 'Einkauf Großwald'),
(5, 'ABSCHLAG3', 'Fracht mit Dieselzuschlag')
SET IDENTITY_INSERT WORKBENCH_MODEL OFF
INSERT INTO WORKBENCH_MODEL_LINE (ID_MODEL, LINE_NUM, STATISTIK, BEZEICH, WERT_TEXT, WERT_LINE, SUBSET_DEF, ART_ID) VALUES
(1, 0, 2, 'Rindenabzug Fichte', '-10,00', NULL, '83 IN (''FI'') ;', 2),
(1, 1, 3, 'Käferholzabschlag', '-25,75', '1', '90 IN (''CX'') ;', 3),
(1, 2, 13, 'Skonto', '-2,00', '1,2', NULL, NULL),
(2, 0, 5, 'Frachtkostenersatz', '8,50', NULL, NULL, 1),
(2, 1, 6, 'Manipulation am Werksplatz', '-1,20', NULL, '87 IN (''F'', ''S'') ;', NULL),
(3, 0, 11, 'Verbandsbeitrag', '-0,40', NULL, NULL, 4),
(3, 1, 7, 'Wegebenützung', '-1,20', '1', NULL, NULL),
(4, 0, 1, 'Mengenstaffel ab 500 Fm', '1,50', NULL, NULL, NULL),
(4, 1, 4, 'Zuschlag zertifiziert', '2,00', NULL, '87 IN (''L'') ;', NULL),
(4, 2, 12, 'Vermessung je Stück', '-1,24', '1,2', NULL, 5),
(5, 0, 5, 'Dieselzuschlag', '0,35', NULL, NULL, 7)
GO

-- The lookup lists of the logistics settings. Weekdays count from 1 = Sunday.
SET IDENTITY_INSERT WVO_T_BELIEFERUNG ON
INSERT INTO WVO_T_BELIEFERUNG (ID, [SHORT], [LONG]) VALUES
(1, 'AB', 'Abruf durch das Werk'),
(2, 'KW', 'Gleichmäßig nach Kalenderwochen'),
(3, 'FR', 'Freie Anlieferung')
SET IDENTITY_INSERT WVO_T_BELIEFERUNG OFF
SET IDENTITY_INSERT WVO_T_LIEFERPARITAT ON
INSERT INTO WVO_T_LIEFERPARITAT (ID, [SHORT], [LONG]) VALUES
(1, 'FS', 'Frei Straße, LKW-befahrbar'),
(2, 'FW', 'Frei Werk'),
(3, 'FB', 'Frei Bahnhof verladen')
SET IDENTITY_INSERT WVO_T_LIEFERPARITAT OFF
INSERT INTO WVO_T_BEREITSELLUNGS (ID, [SHORT], [LONG]) VALUES
(1, 'So', 'Sonntag'),
(2, 'Mo', 'Montag'),
(3, 'Di', 'Dienstag'),
(4, 'Mi', 'Mittwoch'),
(5, 'Do', 'Donnerstag'),
(6, 'Fr', 'Freitag'),
(7, 'Sa', 'Samstag')
GO

-- MESZAHL 1 shows the measure-number column of the price lines; ARTIKEL 1 takes the article columns of
-- the deduction models; STANDARDMANDANT is the client that the host starts with. PATHOFWVOWEBVERTRAEGE is the
-- folder for original contract documents, UNCOFDRIVEM the share that the drive M: of their paths stands for;
-- MAILRECIPIENTS how serial mail names its recipients: BCC, TO or CC. FAKTART1 … FAKTART9 name the
-- contract kinds (VERTRAEGE.ID_FAKTART) of the provision reports.
INSERT INTO WORKBENCH_SETTING ([NAME], [VALUE]) VALUES
('MESZAHL', '0'),
('ARTIKEL', '0'),
('STANDARDMANDANT', '1'),
('PATHOFWVOWEBVERTRAEGE', 'vertragsdokumente'),
('UNCOFDRIVEM', '\\dateiserver\vertrag'),
('MAILRECIPIENTS', 'BCC'),
('FAKTART1', 'Verkauf'),
('FAKTART2', 'Einkauf'),
('FAKTART3', 'Betreuung'),
('FAKTART4', 'Fracht'),
('FAKTART5', 'Holzernte'),
('FAKTART6', 'Seilbringung'),
('FAKTART7', 'Stockkauf'),
('FAKTART8', 'Vermessung'),
('FAKTART9', 'Vermittlung')
GO
