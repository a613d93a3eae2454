-- The tables of the host's database as far as the contract module and the workbench use them.
-- T-SQL, valid on a SQL Server and on the embedded engine; a line that holds only GO ends a batch.
-- The indexes stand at the end, so that a bulk load can put its rows in first.

-- Contracts

-- One row a contract: its parties, its header data, its flags. VER_TYPE is the host's type code
-- ('R', 'A1' … 'A8'), ID_FAKTART the contract kind under which the logistics screens offer it.
CREATE TABLE VERTRAEGE (
    ID_VERTRAG int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    VERTRAG_NAME nvarchar(60) NOT NULL,
    VER_TYPE nvarchar(2) NOT NULL DEFAULT 'R',
    ID_FAKTART int NULL,
    INVDATE datetime NULL,
    DATE1 datetime NULL,
    DATE2 datetime NULL,
    DATE3 datetime NULL,
    LIEFERVON datetime NULL,
    LIEFERBIS datetime NULL,
    KOPF1 nvarchar(255) NULL,
    KOPF2 nvarchar(255) NULL,
    KOPF3 nvarchar(255) NULL,
    KOPF4 nvarchar(255) NULL,
    KOPF5 nvarchar(255) NULL,
    KOPF6 nvarchar(255) NULL,
    KOPF7 nvarchar(255) NULL,
    KOPF8 nvarchar(255) NULL,
    KOPF9 nvarchar(255) NULL,
    KOPF10 nvarchar(255) NULL,
    NUMM1 decimal(14,4) NULL,
    NUMM2 decimal(14,4) NULL,
    NUMM3 decimal(14,4) NULL,
    NUMM4 decimal(14,4) NULL,
    NUMM5 decimal(14,4) NULL,
    NUMM6 decimal(14,4) NULL,
    NUMM7 decimal(14,4) NULL,
    NUMM8 decimal(14,4) NULL,
    NUMM9 decimal(14,4) NULL,
    NUMM10 decimal(14,4) NULL,
    RART_ID int NULL,
    BUCHNR_ID int NULL,
    EURO bit NULL,
    ID_PERSONAL int NULL,
    ID_PERSONAL_LIEFERADRESSE int NULL,
    ID_MANDANTEN int NULL,
    ID_ACCESS_LEVELS int NULL,
    ACL_EMPTY bit NULL,
    ABGESCHLOSSEN bit NULL,
    ZUSATZTEXT nvarchar(max) NULL,
    ZUSATZTEXT_1 nvarchar(max) NULL,
    ZUSATZTEXT_2 nvarchar(max) NULL
)
GO

-- The price lines of a contract; ORDNUNG is their place in it, from 1.
CREATE TABLE VERTRAG_PREISE (
    ID int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    ID_VERTRAG int NOT NULL,
    ORDNUNG int NULL,
    BEZEICHNUNG nvarchar(100) NULL,
    SELEKTION_VALUE nvarchar(2000) NULL,
    MSZ_PERCENT decimal(8,2) NULL,
    PREIS decimal(12,4) NULL,
    EURO bit NULL,
    ID_WARENEINHEIT int NULL,
    PREIS_ABR2 decimal(12,4) NULL
)
GO

-- The quantity lines of a contract; ORDNUNG is their place in it, from 1.
CREATE TABLE VERTRAG_MENGEN (
    ID int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    ID_VERTRAG int NOT NULL,
    ORDNUNG int NULL,
    BEZEICHNUNG nvarchar(100) NULL,
    SELEKTION_VALUE nvarchar(2000) NULL,
    MENGE decimal(14,3) NULL,
    ID_WARENEINHEIT int NULL
)
GO

-- Surcharge and deduction lines of a calculation (RECH_NAME is the contract's name).
CREATE TABLE ABSCHLAG (
    RECH_NAME nvarchar(60) NOT NULL,
    VER_TYPE nvarchar(10) NOT NULL,
    LINE_NUM int NOT NULL,
    ABS_MODEL nvarchar(60) NULL,
    STATISTIK int NULL,
    BEZEICH nvarchar(50) NULL,
    WERT_TEXT nvarchar(50) NULL,
    WERT_LINE nvarchar(50) NULL,
    SUBSET_DEF nvarchar(2000) NULL,
    ART_ID int NULL,
    CONSTRAINT PK_ABSCHLAG PRIMARY KEY (RECH_NAME, VER_TYPE, LINE_NUM)
)
GO

-- Reference tables

-- Persons and firms: customers (KUNDE for type R, ABRECH1 … ABRECH8 for the types A1 … A8), clients
-- (MANDANT), delivery addresses (LIEFERADRESSE, with their owner). Forest helpers are the persons of ABRECH2.
CREATE TABLE PERSONAL (
    ID_PERSONAL int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    NUMMER int NULL,
    KURZBEZEICHNUNG nvarchar(60) NULL,
    ANREDE nvarchar(30) NULL,
    [NAME] nvarchar(80) NULL,
    VORNAME nvarchar(60) NULL,
    POSTFACH nvarchar(40) NULL,
    STRASSE nvarchar(80) NULL,
    PLZ nvarchar(10) NULL,
    ORT nvarchar(60) NULL,
    EMAIL nvarchar(120) NULL,
    TELEFON nvarchar(40) NULL,
    HANDY nvarchar(40) NULL,
    [DISABLE] bit NULL,
    ID_ACCESS_LEVELS int NULL,
    MANDANT bit NULL,
    LIEFERADRESSE bit NULL,
    ID_PERSONAL_BESITZER int NULL,
    KUNDE bit NULL,
    ABRECH1 bit NULL,
    ABRECH2 bit NULL,
    ABRECH3 bit NULL,
    ABRECH4 bit NULL,
    ABRECH5 bit NULL,
    ABRECH6 bit NULL,
    ABRECH7 bit NULL,
    ABRECH8 bit NULL
)
GO

-- Units of goods; the flags say in which measure a quantity in this unit is counted.
CREATE TABLE WARENEINHEIT (
    EINHEIT_ID int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    EINHEIT nvarchar(20) NOT NULL,
    HOLZ bit NULL,
    LDNR int NULL,
    FM bit NULL,
    RM bit NULL,
    SRM bit NULL,
    GEWICHT_ATRO bit NULL,
    GEWICHT_LUTRO bit NULL,
    STUCK bit NULL,
    HSTUCK bit NULL
)
GO

-- Booking kinds.
CREATE TABLE BUCHNR (
    BUCHNR_ID int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    BUCHUNGSTEXT nvarchar(60) NOT NULL
)
GO

-- Invoice kinds.
CREATE TABLE RECHNUNGSART (
    RART_ID int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    RECHNUNGSART nvarchar(60) NOT NULL
)
GO

-- Wood species.
CREATE TABLE HOLZART (
    ID int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    HA nvarchar(10) NOT NULL,
    BEZEICHNUNG nvarchar(60) NULL,
    [DISABLE] bit NULL
)
GO

-- Timber assortments.
CREATE TABLE HOLZSORTE (
    ID int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    HS nvarchar(10) NOT NULL,
    BEZEICHNUNG nvarchar(60) NULL,
    [DISABLE] bit NULL
)
GO

-- Quality classes.
CREATE TABLE GUETEKLASSE (
    ID int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    GKL nvarchar(10) NOT NULL,
    BEZEICHNUNG nvarchar(60) NULL,
    [DISABLE] bit NULL
)
GO

-- Strength classes.
CREATE TABLE STKL (
    ID int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    STKL nvarchar(10) NOT NULL,
    BEZEICHNUNG nvarchar(60) NULL,
    [DISABLE] bit NULL
)
GO

-- The statistics that a surcharge or deduction line can be entered under.
CREATE TABLE STATISTIK (
    STATISTIK_ID int NOT NULL PRIMARY KEY,
    [TEXT] nvarchar(60) NULL
)
GO

-- The article catalogue; an article can bring its own subset of the goods. One with a VER_TYPE is offered
-- for contracts of this type alone, one with an access level to its users.
CREATE TABLE WARENKATALOG (
    ART_ID int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    BEZEICH1 nvarchar(60) NULL,
    ID_FORMULA int NULL,
    EINHPREIS decimal(12,4) NULL,
    SUBSET_DEF nvarchar(2000) NULL,
    VER_TYPE nvarchar(10) NULL,
    ID_ACCESS_LEVELS int NULL,
    [DISABLE] bit NULL
)
GO

-- Delivered timber

-- Delivered logs (or lots): attributes, volume, direct measures and conversion factors. DSART says
-- how it was measured: 1 solid volume, 2 stacked measure, 3 pieces, 4 absolutely dry weight. The measures
-- are no wider than one log or lot needs, which leaves their quotients more decimals.
CREATE TABLE LOGS (
    ID_LOG int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    NUMMER int NULL,
    DATUM datetime NULL,
    HA nvarchar(10) NULL,
    HS nvarchar(10) NULL,
    GKL nvarchar(10) NULL,
    STKL nvarchar(10) NULL,
    LANGE decimal(6,2) NULL,
    MENGE decimal(14,3) NULL,
    DSART smallint NULL,
    KUBATUR decimal(9,3) NULL,
    KUBRM decimal(9,3) NULL,
    KUBATRO decimal(9,3) NULL,
    STK decimal(9,2) NULL,
    UFAKT_RM decimal(9,4) NULL,
    UFAKT_ATO decimal(9,4) NULL,
    UFAKT_STK decimal(9,4) NULL,
    UFAKT_LUT decimal(9,4) NULL
)
GO

-- Where a log was invoiced: for each contract type the name of the contract, and the forest helper.
CREATE TABLE LOGS_RECH (
    ID int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    ID_LOG int NOT NULL,
    R_VERTRAG nvarchar(60) NULL,
    A1_VERTRAG nvarchar(60) NULL,
    A2_VERTRAG nvarchar(60) NULL,
    A3_VERTRAG nvarchar(60) NULL,
    A4_VERTRAG nvarchar(60) NULL,
    A5_VERTRAG nvarchar(60) NULL,
    A6_VERTRAG nvarchar(60) NULL,
    A7_VERTRAG nvarchar(60) NULL,
    A8_VERTRAG nvarchar(60) NULL,
    A2_KUNDE int NULL
)
GO

-- Invoiced quantities of the logistics contracts, by contract name and forest helper.
CREATE TABLE WVO_STAT_LOGS_RECH (
    ID int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    R_VERTRAG nvarchar(60) NULL,
    A2_KUNDE int NULL,
    A1_MENGE decimal(14,3) NULL
)
GO

-- Logistics coordination

-- The logistics settings of a contract: one row, made when they are first opened. A flag is 1 or NULL.
CREATE TABLE WVO_VERTRAG (
    ID int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    ID_VERTRAEGE int NOT NULL,
    ANGEMELDETEMENGE bit NULL,
    GESPERRT bit NULL,
    MENGENAUF bit NULL,
    ERFORDERLICH bit NULL,
    AKTIVE bit NULL,
    VERMARKTUNG bit NULL,
    SICHTBAR bit NULL,
    HANDABMAS bit NULL,
    VERTRAG_MG_SICHTBAR bit NULL,
    GESCHAEFTSFELD_NEU bit NULL,
    VORVERTRAG bit NULL,
    ANGEMELDETE datetime NULL,
    MENGENMELDUNG datetime NULL,
    UBERLIEFERUNG decimal(8,2) NULL,
    BEMERKUNG nvarchar(2000) NULL,
    [ORIGINAL] nvarchar(260) NULL,
    BEREITSELLUNGS smallint NULL,
    BEREITSELLUNGSTIME nvarchar(5) NULL,
    ID_WVO_T_BELIEFERUNG int NULL,
    ID_WVO_T_LIEFERPARITAT int NULL,
    KEINE_MENGENMELDUNG_AUF_WB bit NULL,
    LIEFERUNGAUSSERHALBMOEGLICH bit NULL,
    FHP_LOGISTIK_VERWENDEN bit NULL,
    FHP_WALDVERBAND_KOORDINATOR bit NULL,
    FHP_WH_FR_AENDERN bit NULL,
    FHP_WH_TA_TEILEN bit NULL,
    FHP_TA_SENDETAG smallint NULL,
    FHP_TA_SENDETIME nvarchar(5) NULL
)
GO

-- Kinds of delivery.
CREATE TABLE WVO_T_BELIEFERUNG (
    ID int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    [SHORT] nvarchar(20) NULL,
    [LONG] nvarchar(80) NULL
)
GO

-- Delivery parities.
CREATE TABLE WVO_T_LIEFERPARITAT (
    ID int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    [SHORT] nvarchar(20) NULL,
    [LONG] nvarchar(80) NULL
)
GO

-- Weekdays, numbered from 1 = Sunday, for the two weekday boxes of the logistics settings.
CREATE TABLE WVO_T_BEREITSELLUNGS (
    ID int NOT NULL PRIMARY KEY,
    [SHORT] nvarchar(20) NULL,
    [LONG] nvarchar(80) NULL
)
GO

-- The calendar weeks of a logistics contract (ISO year and week) and their planned quantity.
CREATE TABLE WVO_VERTAG_KALENDER (
    ID int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    ID_WVO_VERTRAG int NOT NULL,
    JAHR int NULL,
    WOCHE int NULL,
    PLANMENGE decimal(14,2) NULL
)
GO

-- The forest helpers of a logistics contract, their announced and confirmed quantities.
CREATE TABLE WVO_VERTRAG_WALDHELFER (
    ID int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    ID_WVO_VERTRAG int NOT NULL,
    ID_PERSONAL int NOT NULL,
    MENGE_ANG decimal(14,2) NULL,
    MENGE_BES decimal(14,2) NULL,
    DATUM_CHANGE datetime NULL,
    DATUM_CHANGE_ZENT datetime NULL
)
GO

-- Weekly provision reports: what a forest helper provides under a contract in one week.
CREATE TABLE WVO_BEREITMELDUNG_KW (
    ID int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    ID_PERSONAL_WH int NOT NULL,
    ID_VERTRAEGE int NOT NULL,
    JAHR int NOT NULL,
    WOCHE int NOT NULL,
    DATUM_GENERATE datetime NULL,
    ZUEGE int NULL,
    ZUEG_ZUGESAGT int NULL,
    FRAECHTER_TEXT nvarchar(100) NULL,
    BEMERKUNG nvarchar(500) NULL,
    DATUM_CHANGE datetime NULL,
    DATUM_CHANGE_ZENT datetime NULL
)
GO

-- Order notes of the forest owners, addressed to a forest helper (ID_PERSONAL_WH).
CREATE TABLE WVO2_AUFTRAG_NOTIZ (
    ID int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    ID_PERSONAL_WH int NULL,
    ID_PERSONAL_WB int NULL,
    DATUM datetime NULL,
    NOTIZ nvarchar(500) NULL
)
GO

-- The assortments of an order note: what the owner plans to deliver under a logistics contract.
CREATE TABLE WVO2_SORTIMENTDATEN (
    ID int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    ID_WVO2_AUFTRAG_NOTIZ int NOT NULL,
    ID_WVO_VERTRAG int NULL,
    BEZEICHNUNG nvarchar(100) NULL,
    PLANMENGE decimal(14,2) NULL
)
GO

-- The forest owners (ID_PERSONAL_WB) who deliver through a forest helper of a contract.
CREATE TABLE WVO_VERTRAG_WH_WB (
    ID int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    ID_WVO_VERTRAG_WALDHELFER int NOT NULL,
    ID_PERSONAL_WB int NOT NULL
)
GO

-- The weekly quantities of those forest owners.
CREATE TABLE WVO_VERTRAG_WB_KALENDER (
    ID int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    ID_WVO_VERTRAG_WH_WB int NOT NULL,
    JAHR int NULL,
    WOCHE int NULL,
    MENGE decimal(14,2) NULL
)
GO

-- Takeover notes: timber handed over at the forest road, not yet invoiced.
CREATE TABLE WVO_UBERNAHMESCHEIN (
    ID int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    ID_VERTRAEGE int NULL,
    ID_PERSONAL_WH int NULL,
    ID_RELTABLE int NULL,
    NUMMER int NULL,
    DATUM datetime NULL
)
GO

-- The quantities on a takeover note, by forest owner.
CREATE TABLE WVO_UBERNAHMESCH_WB_MENGE (
    ID int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    ID_WVO_UBERNAHMESCHEIN int NOT NULL,
    ID_PERSONAL_WB int NULL,
    MENGE decimal(14,3) NULL
)
GO

-- The host's tree of records; takeover notes hang on it. A group, or a disabled record, does not count.
CREATE TABLE RELTABLE (
    ID int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    BEZEICHNUNG nvarchar(100) NULL,
    GRUPPE bit NULL,
    [DISABLE] bit NULL
)
GO

-- What the workbench's services keep

-- Named settings of the installation.
CREATE TABLE WORKBENCH_SETTING (
    [NAME] nvarchar(60) NOT NULL PRIMARY KEY,
    [VALUE] nvarchar(500) NULL
)
GO

-- The column layouts of the grids, by user and key.
CREATE TABLE WORKBENCH_GRID_LAYOUT (
    USERNAME nvarchar(60) NOT NULL,
    LAYOUT_KEY nvarchar(60) NOT NULL,
    LAYOUT nvarchar(max) NULL,
    CONSTRAINT PK_WORKBENCH_GRID_LAYOUT PRIMARY KEY (USERNAME, LAYOUT_KEY)
)
GO

-- Named models of surcharge and deduction lines, by their category (ABSCHLAG, ABSCHLAG1 … ABSCHLAG8), and
-- their lines, as ABSCHLAG has them.
CREATE TABLE WORKBENCH_MODEL (
    ID_MODEL int IDENTITY(1,1) NOT NULL PRIMARY KEY,
    CATEGORY nvarchar(20) NOT NULL,
    MODEL nvarchar(60) NOT NULL
)
GO

CREATE TABLE WORKBENCH_MODEL_LINE (
    ID_MODEL int NOT NULL,
    LINE_NUM int NOT NULL,
    STATISTIK int NULL,
    BEZEICH nvarchar(50) NULL,
    WERT_TEXT nvarchar(50) NULL,
    WERT_LINE nvarchar(50) NULL,
    SUBSET_DEF nvarchar(2000) NULL,
    ART_ID int NULL,
    CONSTRAINT PK_WORKBENCH_MODEL_LINE PRIMARY KEY (ID_MODEL, LINE_NUM)
)
GO

-- Which version of this schema a database has. It counts on with every table, column and index that comes; a
-- database of an earlier version gets what it lacks when it is opened. So a column that comes later takes NULL.
INSERT INTO WORKBENCH_SETTING ([NAME], [VALUE]) VALUES ('SCHEMA', '2')
GO

-- Indexes

CREATE INDEX IX_VERTRAEGE_NAME ON VERTRAEGE (VERTRAG_NAME)
CREATE INDEX IX_VERTRAG_PREISE_VERTRAG ON VERTRAG_PREISE (ID_VERTRAG, ORDNUNG)
CREATE INDEX IX_VERTRAG_MENGEN_VERTRAG ON VERTRAG_MENGEN (ID_VERTRAG, ORDNUNG)
CREATE INDEX IX_PERSONAL_NUMMER ON PERSONAL (NUMMER)
GO

-- A delivered quantity starts at the logs booked against one contract name, for one contract type.
CREATE INDEX IX_LOGS_RECH_LOG ON LOGS_RECH (ID_LOG)
CREATE INDEX IX_LOGS_RECH_R_VERTRAG ON LOGS_RECH (R_VERTRAG, ID_LOG)
CREATE INDEX IX_LOGS_RECH_A1_VERTRAG ON LOGS_RECH (A1_VERTRAG, ID_LOG)
CREATE INDEX IX_LOGS_RECH_A2_VERTRAG ON LOGS_RECH (A2_VERTRAG, ID_LOG)
CREATE INDEX IX_LOGS_RECH_A3_VERTRAG ON LOGS_RECH (A3_VERTRAG, ID_LOG)
CREATE INDEX IX_LOGS_RECH_A4_VERTRAG ON LOGS_RECH (A4_VERTRAG, ID_LOG)
CREATE INDEX IX_LOGS_RECH_A5_VERTRAG ON LOGS_RECH (A5_VERTRAG, ID_LOG)
CREATE INDEX IX_LOGS_RECH_A6_VERTRAG ON LOGS_RECH (A6_VERTRAG, ID_LOG)
CREATE INDEX IX_LOGS_RECH_A7_VERTRAG ON LOGS_RECH (A7_VERTRAG, ID_LOG)
CREATE INDEX IX_LOGS_RECH_A8_VERTRAG ON LOGS_RECH (A8_VERTRAG, ID_LOG)
GO

-- What a forest helper has delivered: the quantity reports sum up the logs by helper and contract name, the
-- provision reports what was invoiced by contract name and helper. Both find all they need in the index.
CREATE INDEX IX_LOGS_RECH_HELFER ON LOGS_RECH (A2_KUNDE, R_VERTRAG, ID_LOG)
CREATE INDEX IX_WVO_STAT_LOGS_RECH_HELFER ON WVO_STAT_LOGS_RECH (R_VERTRAG, A2_KUNDE, A1_MENGE)
GO

CREATE UNIQUE INDEX UX_WORKBENCH_MODEL_NAME ON WORKBENCH_MODEL (CATEGORY, MODEL)
GO

-- The settings of a contract are opened by the contract, its weeks and helpers by the settings; a week is looked
-- up by year and week when it is generated or saved, a helper by person for the quantity reports.
CREATE UNIQUE INDEX UX_WVO_VERTRAG_VERTRAEGE ON WVO_VERTRAG (ID_VERTRAEGE)
CREATE INDEX IX_WVO_VERTAG_KALENDER_WEEK ON WVO_VERTAG_KALENDER (ID_WVO_VERTRAG, JAHR, WOCHE)
CREATE INDEX IX_WVO_VERTRAG_WALDHELFER_VERTRAG ON WVO_VERTRAG_WALDHELFER (ID_WVO_VERTRAG)
CREATE INDEX IX_WVO_VERTRAG_WALDHELFER_PERSONAL ON WVO_VERTRAG_WALDHELFER (ID_PERSONAL)
-- The provision reports join one report to each helper of a contract, and sum up the contract's others.
CREATE INDEX IX_WVO_BEREITMELDUNG_KW_HELFER ON WVO_BEREITMELDUNG_KW (ID_VERTRAEGE, JAHR, WOCHE, ID_PERSONAL_WH)
GO

-- The helper list and the quantity reports join the owners' notes by helper and their assortments by note.
CREATE INDEX IX_WVO2_AUFTRAG_NOTIZ_WH ON WVO2_AUFTRAG_NOTIZ (ID_PERSONAL_WH)
CREATE INDEX IX_WVO2_SORTIMENTDATEN_NOTIZ ON WVO2_SORTIMENTDATEN (ID_WVO2_AUFTRAG_NOTIZ)
-- Confirming the owners' quantities joins the owners of a helper and their weeks.
CREATE INDEX IX_WVO_VERTRAG_WH_WB_HELFER ON WVO_VERTRAG_WH_WB (ID_WVO_VERTRAG_WALDHELFER)
CREATE INDEX IX_WVO_VERTRAG_WB_KALENDER_WH_WB ON WVO_VERTRAG_WB_KALENDER (ID_WVO_VERTRAG_WH_WB)
-- Takeover notes are summed up for a contract by the provision reports, for a helper by the quantity reports.
CREATE INDEX IX_WVO_UBERNAHMESCHEIN_VERTRAG ON WVO_UBERNAHMESCHEIN (ID_VERTRAEGE, ID_PERSONAL_WH)
CREATE INDEX IX_WVO_UBERNAHMESCHEIN_HELFER ON WVO_UBERNAHMESCHEIN (ID_PERSONAL_WH, ID_VERTRAEGE)
CREATE INDEX IX_WVO_UBERNAHMESCH_WB_MENGE_SCHEIN ON WVO_UBERNAHMESCH_WB_MENGE (ID_WVO_UBERNAHMESCHEIN)
GO
