#include "sandbox/Schema.h"

namespace vl::Schema {

QStringList statements()
{
    return {
        QStringLiteral("CREATE TABLE IF NOT EXISTS meta(key TEXT PRIMARY KEY, value TEXT)"),
        // Companies: those with an address are employer accounts; the others only have
        // listings mirrored from elsewhere. Localised names override `name` where given.
        QStringLiteral(R"(CREATE TABLE IF NOT EXISTS employers(
            id INTEGER PRIMARY KEY,
            key TEXT UNIQUE,
            email TEXT UNIQUE COLLATE NOCASE,
            name TEXT NOT NULL,
            name_ka TEXT, name_en TEXT, name_ru TEXT,
            locale TEXT NOT NULL DEFAULT 'ka',
            website TEXT NOT NULL DEFAULT '',
            phone TEXT NOT NULL DEFAULT '',
            logo_url TEXT,
            unread INTEGER NOT NULL DEFAULT 0,
            applications INTEGER NOT NULL DEFAULT 0,
            new_applications INTEGER NOT NULL DEFAULT 0,
            has_mfa INTEGER NOT NULL DEFAULT 0,
            pro_paid INTEGER, pro_until INTEGER, pro_source TEXT,
            pro_cancelling INTEGER NOT NULL DEFAULT 0, pro_bumps INTEGER NOT NULL DEFAULT 0,
            next_key TEXT, next_urgent INTEGER NOT NULL DEFAULT 0,
            created_at INTEGER NOT NULL))"),
        QStringLiteral(R"(CREATE TABLE IF NOT EXISTS employer_tokens(
            token TEXT PRIMARY KEY,
            employer_id INTEGER NOT NULL REFERENCES employers(id) ON DELETE CASCADE,
            created_at INTEGER NOT NULL))"),
        QStringLiteral(R"(CREATE TABLE IF NOT EXISTS codes(
            id INTEGER PRIMARY KEY,
            purpose TEXT NOT NULL,
            email TEXT NOT NULL COLLATE NOCASE,
            code TEXT NOT NULL,
            expires_at INTEGER NOT NULL,
            locale TEXT NOT NULL DEFAULT 'ka',
            used INTEGER NOT NULL DEFAULT 0))"),
        QStringLiteral(R"(CREATE TABLE IF NOT EXISTS attempts(
            scope TEXT NOT NULL,
            subject TEXT NOT NULL COLLATE NOCASE,
            at INTEGER NOT NULL))"),
        QStringLiteral("CREATE INDEX IF NOT EXISTS attempts_by_subject "
                       "ON attempts(scope, subject, at)"),
        QStringLiteral(R"(CREATE TABLE IF NOT EXISTS listings(
            ref TEXT PRIMARY KEY,
            kind TEXT NOT NULL,
            employer_id INTEGER NOT NULL REFERENCES employers(id),
            category TEXT NOT NULL,
            city TEXT NOT NULL,
            employment_type TEXT NOT NULL,
            salary_min INTEGER, salary_max INTEGER,
            pay_type TEXT NOT NULL,
            pay_rank INTEGER,
            featured INTEGER NOT NULL DEFAULT 0,
            aggregated INTEGER NOT NULL DEFAULT 0,
            direct INTEGER NOT NULL DEFAULT 0,
            published_at INTEGER NOT NULL,
            bumped_at INTEGER,
            gig_date TEXT, gig_hours INTEGER,
            views INTEGER NOT NULL DEFAULT 0,
            deadline TEXT,
            lang TEXT NOT NULL,
            apply_url TEXT,
            can_apply INTEGER NOT NULL DEFAULT 0,
            can_enquire INTEGER NOT NULL DEFAULT 0,
            deliver_to TEXT,
            apply_on_web INTEGER NOT NULL DEFAULT 0,
            contact_channels INTEGER,
            no_experience INTEGER NOT NULL DEFAULT 0,
            english INTEGER NOT NULL DEFAULT 0,
            form TEXT,
            status TEXT NOT NULL DEFAULT 'live',
            search TEXT NOT NULL DEFAULT '',
            seeded INTEGER NOT NULL DEFAULT 0))"),
        QStringLiteral("CREATE INDEX IF NOT EXISTS listings_by_board "
                       "ON listings(kind, status, published_at)"),
        // One row per language a listing can be read in; `machine` marks a translation.
        QStringLiteral(R"(CREATE TABLE IF NOT EXISTS listing_texts(
            ref TEXT NOT NULL REFERENCES listings(ref) ON DELETE CASCADE,
            lang TEXT NOT NULL,
            title TEXT NOT NULL,
            description TEXT NOT NULL,
            machine INTEGER NOT NULL DEFAULT 0,
            PRIMARY KEY(ref, lang)))"),
        QStringLiteral(R"(CREATE TABLE IF NOT EXISTS seekers(
            id INTEGER PRIMARY KEY,
            email TEXT UNIQUE NOT NULL COLLATE NOCASE,
            name TEXT NOT NULL,
            totp_secret TEXT,
            mail_only INTEGER NOT NULL DEFAULT 0,
            created_at INTEGER NOT NULL))"),
        QStringLiteral(R"(CREATE TABLE IF NOT EXISTS recovery_codes(
            seeker_id INTEGER NOT NULL REFERENCES seekers(id) ON DELETE CASCADE,
            code TEXT NOT NULL,
            used_at INTEGER))"),
        // A first factor passed: the address is proven, the session not yet granted.
        QStringLiteral(R"(CREATE TABLE IF NOT EXISTS tickets(
            ticket TEXT PRIMARY KEY,
            seeker_id INTEGER NOT NULL REFERENCES seekers(id) ON DELETE CASCADE,
            expires_at INTEGER NOT NULL,
            pending_secret TEXT,
            failures INTEGER NOT NULL DEFAULT 0))"),
        QStringLiteral(R"(CREATE TABLE IF NOT EXISTS seeker_sessions(
            token TEXT PRIMARY KEY,
            seeker_id INTEGER NOT NULL REFERENCES seekers(id) ON DELETE CASCADE,
            created_at INTEGER NOT NULL))"),
        // Applications and questions sent to listings, with the CV the employer sees.
        QStringLiteral(R"(CREATE TABLE IF NOT EXISTS applications(
            id INTEGER PRIMARY KEY,
            ref TEXT UNIQUE NOT NULL,
            token TEXT NOT NULL,
            seeker_id INTEGER REFERENCES seekers(id),
            email TEXT NOT NULL COLLATE NOCASE,
            listing_ref TEXT NOT NULL,
            kind TEXT NOT NULL,
            name TEXT NOT NULL,
            phone TEXT,
            message TEXT,
            pool INTEGER NOT NULL DEFAULT 1,
            answers TEXT NOT NULL DEFAULT '{}',
            status TEXT NOT NULL DEFAULT 'new',
            cv_name TEXT, cv_mime TEXT, cv_data BLOB, cv_updated_at INTEGER,
            cv_left INTEGER NOT NULL DEFAULT 3,
            gold INTEGER NOT NULL DEFAULT 0,
            created_at INTEGER NOT NULL,
            last_at INTEGER NOT NULL))"),
        QStringLiteral(R"(CREATE TABLE IF NOT EXISTS app_messages(
            id INTEGER PRIMARY KEY,
            application_id INTEGER NOT NULL REFERENCES applications(id) ON DELETE CASCADE,
            sender TEXT NOT NULL,
            body TEXT NOT NULL,
            created_at INTEGER NOT NULL))"),
        // Public seeker profiles; they go live at `live_at`, after the review.
        QStringLiteral(R"(CREATE TABLE IF NOT EXISTS seeker_posts(
            ref TEXT PRIMARY KEY,
            manage_key TEXT NOT NULL,
            name TEXT NOT NULL, email TEXT NOT NULL COLLATE NOCASE, phone TEXT,
            age TEXT NOT NULL, title TEXT NOT NULL, description TEXT NOT NULL,
            category TEXT NOT NULL, city TEXT NOT NULL, type TEXT NOT NULL, lang TEXT NOT NULL,
            created_at INTEGER NOT NULL,
            live_at INTEGER NOT NULL))"),
        QStringLiteral(R"(CREATE TABLE IF NOT EXISTS seeker_threads(
            id INTEGER PRIMARY KEY,
            post_ref TEXT NOT NULL REFERENCES seeker_posts(ref) ON DELETE CASCADE,
            employer_id INTEGER NOT NULL REFERENCES employers(id),
            created_at INTEGER NOT NULL,
            last_at INTEGER NOT NULL))"),
        QStringLiteral(R"(CREATE TABLE IF NOT EXISTS seeker_messages(
            id INTEGER PRIMARY KEY,
            thread_id INTEGER NOT NULL REFERENCES seeker_threads(id) ON DELETE CASCADE,
            sender TEXT NOT NULL,
            body TEXT NOT NULL,
            created_at INTEGER NOT NULL))"),
    };
}

} // namespace vl::Schema
