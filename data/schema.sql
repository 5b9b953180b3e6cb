-- The schema of the Quillon database.  Column order matters: an upgrade copies
-- rows column by column, so a new schema may only add columns at the end of a table.
-- Text compares without regard to case; dates are ISO text (yyyy-MM-dd);
-- booleans are 1 and 0; one-decimal values are stored as the double nearest their text.

CREATE TABLE HandicapLog (
    LastName        TEXT COLLATE NOCASE,
    FirstName       TEXT COLLATE NOCASE,
    Gender          TEXT COLLATE NOCASE,
    Handicap        REAL,
    HomeCourseName  TEXT COLLATE NOCASE
);

CREATE TABLE ScoreLog (
    LastName        TEXT COLLATE NOCASE,
    FirstName       TEXT COLLATE NOCASE,
    CourseName      TEXT COLLATE NOCASE,
    Tees            TEXT COLLATE NOCASE,
    Date            TEXT,
    ScoreIndex      INTEGER PRIMARY KEY AUTOINCREMENT,
    Holes           TEXT COLLATE NOCASE,
    Score           NUMERIC,
    AdjustedScore   INTEGER,
    Rating          REAL,
    Slope           INTEGER,
    Type            TEXT COLLATE NOCASE,
    Differential    REAL,
    Used            TEXT COLLATE NOCASE,
    Details         INTEGER,
    Penalties       INTEGER,
    LostBalls       INTEGER,
    Bunkers         INTEGER,
    SandSaves       INTEGER,
    AttemptedSaves  INTEGER,
    CombinedIndex   INTEGER
);

CREATE TABLE ScoreDetails (
    LastName            TEXT COLLATE NOCASE,
    FirstName           TEXT COLLATE NOCASE,
    CourseName          TEXT COLLATE NOCASE,
    Tees                TEXT COLLATE NOCASE,
    Date                TEXT,
    ScoreIndex          INTEGER,
    Hole                INTEGER,
    Score               NUMERIC,
    Putts               NUMERIC,
    PAR                 INTEGER,
    Fairway             INTEGER,
    GreenInRegulation   INTEGER
);

CREATE TABLE ScoringRecord (
    LastName        TEXT COLLATE NOCASE,
    FirstName       TEXT COLLATE NOCASE,
    CourseName      TEXT COLLATE NOCASE,
    Date            TEXT,
    ScoreIndex      INTEGER,
    CombinedIndex   INTEGER,
    Score           NUMERIC,
    Rating          REAL,
    Slope           INTEGER,
    Differential    REAL,
    Used            TEXT COLLATE NOCASE,
    Details         TEXT COLLATE NOCASE
);

CREATE TABLE CourseLog (
    CourseName      TEXT COLLATE NOCASE,
    Tees            TEXT COLLATE NOCASE,
    OverallRating   NUMERIC,
    FrontRating     NUMERIC,
    BackRating      NUMERIC,
    OverallSlope    NUMERIC,
    FrontSlope      NUMERIC,
    BackSlope       NUMERIC,
    YardsIn         NUMERIC,
    YardsOut        NUMERIC,
    TotalYards      NUMERIC,
    ParIn           NUMERIC,
    ParOut          NUMERIC,
    TotalPar        NUMERIC
);

CREATE TABLE CourseDetails (
    CourseName      TEXT COLLATE NOCASE,
    Tees            TEXT COLLATE NOCASE,
    Hole            NUMERIC,
    PAR             NUMERIC,
    Handicap        NUMERIC,
    Yards           NUMERIC
);

CREATE TABLE UnratedTees (
    Gender          TEXT COLLATE NOCASE,
    MinDistance     NUMERIC,
    MaxDistance     NUMERIC,
    RatingChange    NUMERIC,
    SlopeChange     NUMERIC
);

CREATE TABLE DBVersion (
    DatabaseVersion INTEGER
);

-- Look-ups that every view and the handicap run make by golfer or by round.
CREATE INDEX ScoreLogGolfer ON ScoreLog (LastName, FirstName, Date);
-- The round's holes are read through the index alone, their columns included, by the views and charts.
CREATE INDEX ScoreDetailsRound ON ScoreDetails (ScoreIndex, LastName, FirstName, Date, CourseName, Tees, Hole,
    Score, Putts, PAR, Fairway, GreenInRegulation);
CREATE INDEX ScoringRecordGolfer ON ScoringRecord (LastName, FirstName, Date);
CREATE INDEX CourseDetailsTees ON CourseDetails (CourseName, Tees, Hole);

-- A set of tees and a golfer are each one row: the keys compare without case, as the names do.
CREATE UNIQUE INDEX CourseLogKey ON CourseLog (CourseName, Tees);
CREATE UNIQUE INDEX HandicapLogKey ON HandicapLog (LastName, FirstName);
